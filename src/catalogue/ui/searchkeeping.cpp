#include "catalogue/ui/searchkeeping.h"

#include "catalogue/ui/chipbar.h"
#include "catalogue/ui/searchfield.h"
#include "catalogue/ui/searchnamepanel.h"
#include "platform/defaultscontroller.h"

#include <QMenu>

namespace tessera {

SearchKeeping::SearchKeeping(SearchField& field, ChipBar& bar, DefaultsController& defaults, QObject* parent)
    : QObject(parent)
    , m_field(field)
    , m_bar(bar)
    , m_kept(defaults)
    , m_last(defaults)
{
    field.offerSearches();
    connect(&field, &SearchField::keepWanted, this, &SearchKeeping::keepSearch);
    connect(&field, &SearchField::forgetWanted, this, [this] { m_last.forget(); });
    connect(&field, &QLineEdit::textChanged, &bar, &ChipBar::showQuery);
    connect(&bar, &ChipBar::keptClicked, this, &SearchKeeping::choose);
    connect(&bar, &ChipBar::keptMenuWanted, this, &SearchKeeping::showMenu);
    connect(&defaults, &DefaultsController::changed, this, &SearchKeeping::takeSettings);
    takeSettings(QString());
}

void SearchKeeping::takeSettings(const QString& name)
{
    if (name.isEmpty() || name == keys::KeptSearches.name)
        showKept();
    if (name.isEmpty() || name == keys::LastSearches.name)
        m_field.setLastSearches(m_last.all());
}

void SearchKeeping::showKept()
{
    // Its rows know their search by its place.
    if (m_menu)
        m_menu->close();
    m_bar.setKept(m_kept.all());
    m_bar.showQuery(m_field.text());
}

void SearchKeeping::noteSearch()
{
    m_last.note(m_field.text());
}

void SearchKeeping::choose(std::size_t place, bool on)
{
    m_field.setText(on ? m_kept.all().at(place).query : QString());
}

void SearchKeeping::keepSearch()
{
    const QString query = m_field.text().simplified();
    if (query.isEmpty())
        return;
    noteSearch();
    auto* panel
        = new SearchNamePanel(SearchNamePanel::Purpose::Keep, {query, query}, m_kept.all(), m_field.window());
    connect(panel, &SearchNamePanel::nameChosen, this,
            [this, query](const QString& name) { m_kept.keep({name, query}); });
    panel->open();
}

void SearchKeeping::showMenu(std::size_t place, const QPoint& at)
{
    auto* menu = new QMenu(&m_bar);
    m_menu = menu;
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addAction(qtTrId("kept_rename"), this, [this, place] { rename(place); });
    menu->addAction(qtTrId("kept_remove"), this, [this, place] { remove(place); });
    menu->addSeparator();
    menu->addAction(qtTrId("kept_left"), this, [this, place] { move(place, place - 1); })
        ->setEnabled(place > 0);
    menu->addAction(qtTrId("kept_right"), this, [this, place] { move(place, place + 1); })
        ->setEnabled(place + 1 < m_kept.all().size());
    menu->popup(at);
}

void SearchKeeping::rename(std::size_t place)
{
    std::vector<KeptSearch> others = m_kept.all();
    const KeptSearch search = others.at(place);
    others.erase(others.begin() + static_cast<std::ptrdiff_t>(place));
    auto* panel
        = new SearchNamePanel(SearchNamePanel::Purpose::Rename, search, std::move(others), m_field.window());
    connect(panel, &SearchNamePanel::nameChosen, this, [this, old = search.name](const QString& name) {
        if (const auto now = m_kept.placeOf(old))
            m_kept.rename(*now, name);
    });
    panel->open();
}

// What it searched for can be found again among the last searches.
void SearchKeeping::remove(std::size_t place)
{
    const KeptSearch search = m_kept.all().at(place);
    m_last.note(search.query);
    m_kept.remove(place);
    m_bar.focusKept(place);
    Q_EMIT statusMessage(qtTrId("kept_removed").arg(search.name));
}

void SearchKeeping::move(std::size_t from, std::size_t to)
{
    m_kept.move(from, to);
    m_bar.focusKept(to);
}

} // namespace tessera
