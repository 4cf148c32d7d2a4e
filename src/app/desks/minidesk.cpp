#include "app/desks/minidesk.h"

#include "app/windows/miniwindow.h"
#include "app/windows.h"
#include "catalogue/catalogue.h"
#include "catalogue/recorddictionary.h"
#include "catalogue/ui/gamefinder.h"
#include "catalogue/ui/gamelistcontroller.h"
#include "platform/defaultscontroller.h"

#include <QLineEdit>
#include <QToolButton>

#include <algorithm>

namespace tessera {

namespace {

constexpr std::size_t mostSuggested = 12;

} // namespace

MiniDesk::MiniDesk(Windows& windows, Catalogue& catalogue, GameListController& list, GameFinder& finder,
                   DefaultsController& defaults, QObject* parent)
    : QObject(parent)
    , m_windows(windows)
    , m_catalogue(catalogue)
    , m_list(list)
    , m_finder(finder)
    , m_defaults(defaults)
{
    connect(&catalogue, &Catalogue::replaced, this, &MiniDesk::showTitle);
    connect(&catalogue, &Catalogue::recordChanged, this, &MiniDesk::showTitle);
}

MiniDesk::~MiniDesk() = default;

MiniWindow& MiniDesk::window()
{
    if (m_window)
        return *m_window;
    m_window = std::make_unique<MiniWindow>(m_defaults);
    connect(m_window->setnameTextField2, &QLineEdit::textEdited, this, &MiniDesk::suggest);
    connect(m_window->setnameTextField2, &QLineEdit::textChanged, this, &MiniDesk::showTitle);
    connect(m_window->aboveButton, &QToolButton::clicked, this, &MiniDesk::setAbove);
    connect(m_window.get(), &MiniWindow::playRequested, this, [this] { Q_EMIT launchRequested(game()); });
    connect(m_window->randomButton, &QToolButton::clicked, this, &MiniDesk::random);
    connect(m_window->mainButton, &QToolButton::clicked, this, &MiniDesk::mainWanted);
    connect(m_window.get(), &TransparentWindow::orderedOut, this, &MiniDesk::mainWanted);
    const bool above = m_defaults.stored().flag(keys::MiniWindowAbove.name);
    m_window->aboveButton->setChecked(above);
    m_window->setAbove(above);
    m_window->setEmulator(m_emulator);
    m_windows.carryMenuKeys(*m_window);
    m_windows.watch(*m_window, KeyWindow::Kind::Mini);
    m_windows.places().keep(*m_window, keys::MiniWindowGeometry);
    m_windows.openDropped(*m_window);
    Q_EMIT windowMade(*m_window);
    return *m_window;
}

void MiniDesk::setEmulator(const QString& title)
{
    m_emulator = title;
    if (m_window)
        m_window->setEmulator(title);
}

SelectedGame MiniDesk::selected() const
{
    const GameRecord* game = record();
    if (game == nullptr)
        return {this->game(), {}, {}, {}};
    return {this->game(), fieldText((*game)[Field::Title]), fieldText((*game)[Field::Titlejp]),
            fieldText((*game)[Field::Cloneof])};
}

QString MiniDesk::game() const
{
    return m_window ? m_window->setnameTextField2->text() : QString();
}

void MiniDesk::random()
{
    m_list.gameShuffle();
    setGame(m_list.tableViewSelectionROM());
}

void MiniDesk::setGame(const QString& set)
{
    window().setnameTextField2->setText(set);
}

void MiniDesk::suggest(const QString& text)
{
    QList<MiniWindow::Suggestion> suggestions;
    for (const std::uint32_t record : m_finder.suggestions(text, mostSuggested)) {
        const GameRecord& game = m_catalogue.records()[record];
        suggestions << MiniWindow::Suggestion{fieldText(game[Field::Name]), fieldText(game[Field::Title])};
    }
    m_window->suggest(suggestions);
}

const GameRecord* MiniDesk::record() const
{
    const std::string name = game().toStdString();
    const auto records = m_catalogue.records();
    const auto found = std::ranges::find_if(
        records, [&](const GameRecord& each) { return !name.empty() && each[Field::Name] == name; });
    return found == records.end() ? nullptr : &*found;
}

void MiniDesk::showTitle()
{
    if (!m_window)
        return;
    const GameRecord* shown = record();
    m_window->showTitle(shown != nullptr ? fieldText((*shown)[Field::Title]) : QString());
}

void MiniDesk::setAbove(bool above)
{
    m_defaults.keep(keys::MiniWindowAbove, above);
    m_window->setAbove(above);
}

} // namespace tessera
