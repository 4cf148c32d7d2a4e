#include "app/desks/finding.h"

#include "app/windows/mainwindow.h"
#include "app/windows.h"
#include "catalogue/catalogue.h"
#include "catalogue/recorddictionary.h"
#include "catalogue/search/matches.h"
#include "catalogue/ui/chipbar.h"
#include "catalogue/ui/filterpanel.h"
#include "catalogue/ui/gamelistcontroller.h"
#include "catalogue/ui/gametablemodel.h"
#include "catalogue/ui/gametableview.h"
#include "catalogue/ui/makercompletion.h"
#include "catalogue/ui/searchfield.h"
#include "launch/profilecache.h"
#include "launch/emulatorchoice.h"
#include "platform/defaultscontroller.h"
#include "widgets/bringforward.h"

#include <QCheckBox>
#include <QFileInfo>
#include <QHeaderView>
#include <QInputMethodEvent>
#include <QPushButton>
#include <QSignalBlocker>
#include <QToolButton>

#include <utility>

namespace tessera {

Finding::Finding(const Parts& parts, QObject* parent)
    : QObject(parent)
    , m_parts(parts)
    , m_finder(parts.catalogue, parts.list, parts.defaults)
    , m_searches(*parts.window.searchField, *parts.window.chipBar, parts.defaults)
{
    MainWindow& window = m_parts.window;
    joinField();
    completeMakers();
    connect(&m_finder, &GameFinder::countsChanged, window.chipBar, &ChipBar::setCounts);
    connect(window.chipBar, &ChipBar::chosen, &m_finder, &GameFinder::setChip);
    connect(window.chipBar->familiesBox, &QCheckBox::clicked, &m_finder, &GameFinder::setFamilies);
    connect(window.gameTable, &GameTableView::familyToggled, &m_finder, &GameFinder::toggleFamily);
    connect(window.showAllButton, &QPushButton::clicked, this, &Finding::showAll);
    connect(window.filterButton, &QToolButton::clicked, this, &Finding::showPredicatePanel);
    connect(&m_roms, &RomWatcher::changed, this, [this] { m_finder.setRomFolders(m_roms.folders()); });
    connect(&m_parts.profiles, &ProfileCache::answered, this, &Finding::takeProfile);
    connect(&m_parts.defaults, &DefaultsController::changed, this, [this](const QString& name) {
        if (name.isEmpty() || name == keys::RomsPath.name)
            readRomFolders();
    });

    m_finder.restore();
    window.chipBar->setChip(m_finder.chip());
    window.chipBar->familiesBox->setChecked(m_finder.showsFamilies());
}

Finding::~Finding() = default;

void Finding::joinField()
{
    SearchField* field = m_parts.window.searchField;
    connect(field, &QLineEdit::textChanged, &m_finder, &GameFinder::setQuery);
    connect(field, &QLineEdit::textChanged, this, &Finding::showQuery);
    connect(&m_finder, &GameFinder::changed, this, &Finding::showSort);
    connect(&m_finder, &GameFinder::changed, this, &Finding::complain);
    connect(&m_finder, &GameFinder::changed, this, &Finding::showMatches);
    // One that found nothing is not worth coming back to.
    connect(field, &SearchField::searched, &m_searches, [this] {
        if (const ArrangedList& found = m_parts.list.list(); !found.rows().empty() && !found.isNearest())
            m_searches.noteSearch();
    });
    connect(field, &QLineEdit::returnPressed, &m_parts.list, &ListController::startByReturn);
    connect(field, &SearchField::leftDownwards, &m_parts.list, &ListController::enterTable);
    connect(m_parts.window.gameTable, &GameTableView::typed, field, &SearchField::beginWith);
    connect(m_parts.window.gameTable, &GameTableView::composed, field, &SearchField::composeOn);
}

void Finding::completeMakers()
{
    connect(&m_parts.list, &GameListController::contentChanged, this, [this] { m_makers.reset(); });
    connect(&m_parts.catalogue, &Catalogue::recordChanged, this, [this] { m_makers.reset(); });
    new MakerCompletion(*m_parts.window.searchField, MakerCompletion::Holds::Search,
                        [this](const QString& begun) { return makers(begun); });
}

QStringList Finding::makers(const QString& begun)
{
    constexpr qsizetype most = 10;
    if (!m_makers)
        m_makers.emplace(m_parts.catalogue.records());
    return m_makers->beginningWith(begun, most);
}

FilterPanel& Finding::panel()
{
    if (m_panel)
        return *m_panel;
    m_panel = std::make_unique<FilterPanel>();
    connect(m_panel.get(), &FilterPanel::rulesChanged, &m_finder, &GameFinder::setRules);
    connect(m_panel.get(), &FilterPanel::makerWanted, &m_finder, &GameFinder::setPredicate);
    connect(m_panel.get(), &FilterPanel::makerCleared, &m_finder, &GameFinder::clearPredicate);
    connect(&m_finder, &GameFinder::changed, this, [this] { m_panel->showMaker(m_finder.maker()); });
    m_panel->showMaker(m_finder.maker());
    new MakerCompletion(*m_panel->filterTextView, MakerCompletion::Holds::Maker,
                        [this](const QString& begun) { return makers(begun); });
    m_parts.windows.places().keep(*m_panel, keys::FilterPanelGeometry);
    return *m_panel;
}

void Finding::showQuery()
{
    m_parts.window.searchField->markTerms(m_finder.query());
    complain();
    sayHidden();
}

// What is wrong stands beside the chips.
void Finding::complain()
{
    QStringList wrong = m_finder.query().complaints();
    const ArrangedList& list = m_parts.list.list();
    if (list.isNearest() && list.size() > 0)
        wrong << qtTrId("search_nearest");
    m_parts.window.chipBar->complain(wrong.join(u' '));
}

void Finding::showMatches()
{
    // What is only near has other letters.
    const bool isNearest = m_parts.list.list().isNearest();
    m_parts.window.gameTable->showMatches(isNearest ? Matches() : Matches(m_finder.query()));
}

void Finding::sayHidden()
{
    const QString sentence = hidden();
    if (sentence == m_said)
        return;
    Q_EMIT statusWithdrawn(std::exchange(m_said, sentence));
    if (!sentence.isEmpty())
        Q_EMIT statusMessage(sentence);
}

QString Finding::hidden()
{
    const std::optional<HiddenSet> set = m_finder.hidden();
    if (!set)
        return {};
    const GameRecord& record = m_parts.catalogue.records()[set->record];
    const QString by = m_parts.window.searchField->text().sliced(set->by->begin, set->by->size);
    return Message{"search_hidden_set", {fieldText(record[Field::Name]), by, fieldText(record[Field::Title])}}
        .text();
}

void Finding::showSort()
{
    // Ranked rows have no sorted column; the first click on a header sorts them upwards.
    QHeaderView* header = m_parts.window.gameTable->horizontalHeader();
    const QSignalBlocker quiet(header);
    const ArrangedList& list = m_parts.list.list();
    if (list.isRanked())
        header->setSortIndicator(-1, Qt::AscendingOrder);
    else
        header->setSortIndicator(GameTableModel::columnOf(list.sortField()),
                                 list.ascending() ? Qt::AscendingOrder : Qt::DescendingOrder);
}

void Finding::prepare()
{
    m_isPrepared = true;
    m_finder.prepare();
    readRomFolders();
}

void Finding::takeProfile(const QString& executable, const ProfileAnswer& answer)
{
    if (executable != m_parts.emulator.emulator())
        return;
    m_emulatorFolders = answer.profile ? answer.profile->romFolderList(QFileInfo(executable).absolutePath())
                                       : QStringList();
    readRomFolders();
}

void Finding::readRomFolders()
{
    if (!m_isPrepared)
        return;
    const auto folder = m_parts.defaults.stored().value(keys::RomsPath.name);
    m_roms.setFolders(folder ? std::optional(folder->toString()) : std::nullopt, m_emulatorFolders);
}

void Finding::showPredicatePanel()
{
    FilterPanel& shown = panel();
    if (!isShown(shown) && shown.rowCount() == 0)
        shown.addRow();
    toggle(shown);
}

void Finding::focusSearch()
{
    m_parts.window.searchField->beginSearch();
}

void Finding::showAll()
{
    // Once it shows everything, empty fields ask for nothing more.
    m_finder.showAll();
    m_parts.window.searchField->clear();
    if (m_panel)
        m_panel->clear();
    m_parts.window.chipBar->setChip(m_finder.chip());
    m_parts.window.chipBar->familiesBox->setChecked(m_finder.showsFamilies());
}

} // namespace tessera
