#include "catalogue/ui/gamefinder.h"

#include "catalogue/catalogue.h"
#include "catalogue/families.h"
#include "catalogue/ui/gamelistcontroller.h"
#include "platform/defaultscontroller.h"

#include <algorithm>

namespace tessera {

namespace {

const ChipRow& rowOf(Chip chip)
{
    return *std::ranges::find(chips, chip, &ChipRow::chip);
}

QString textOf(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

} // namespace

GameFinder::GameFinder(Catalogue& catalogue, GameListController& list, DefaultsController& defaults,
                       QObject* parent)
    : QObject(parent)
    , m_catalogue(catalogue)
    , m_list(list)
    , m_defaults(defaults)
{
    m_pool.setMaxThreadCount(1);
    connect(&list, &GameListController::contentChanged, this, &GameFinder::forget);
    connect(&catalogue, &Catalogue::recordChanged, this, &GameFinder::follow);
}

void GameFinder::restore()
{
    const QString chip = m_defaults.defaults().string(keys::GameListChip.name);
    const auto row
        = std::ranges::find_if(chips, [&](const ChipRow& each) { return chip == textOf(each.name); });
    m_chip = row == chips.end() ? Chip::All : row->chip;
    m_foldsFamilies = m_defaults.defaults().flag(keys::GameListFamilies.name);
    forget();
}

GameSearch& GameFinder::search()
{
    if (!m_search) {
        m_search.emplace(m_catalogue.records());
        m_search->setHaves(m_haves);
        fold();
    }
    return *m_search;
}

// What is not ASCII is folded beside the windows; until then it is found by its ASCII only.
void GameFinder::fold()
{
    m_pool.start([this, generation = m_generation, unfolded = m_search->unfolded()] {
        auto folded = std::make_shared<FoldedTexts>(SearchTexts::fold(unfolded));
        QMetaObject::invokeMethod(
            this,
            [this, generation, folded] {
                if (generation != m_generation || !m_search)
                    return;
                m_search->take(std::move(*folded));
                if (!m_query.isEmpty())
                    find();
            },
            Qt::QueuedConnection);
    });
}

void GameFinder::prepare()
{
    Q_EMIT countsChanged(search().chipCounts());
}

// The records are others now: what was kept of them counts no more.
void GameFinder::forget()
{
    const bool wasPrepared = m_search.has_value();
    ++m_generation;
    m_search.reset();
    m_haves.clear();
    setHaves();
    applyFamilies();
    find();
    if (wasPrepared)
        prepare();
}

void GameFinder::follow(std::uint32_t record)
{
    if (m_search)
        m_search->replace(record, m_catalogue.records()[record]);
}

void GameFinder::setQuery(const QString& text)
{
    m_query = Query(text);
    find();
}

void GameFinder::setChip(Chip chip)
{
    m_chip = chip;
    m_defaults.defaults().setValue(keys::GameListChip.name, textOf(rowOf(chip).name));
    find();
}

void GameFinder::find()
{
    const std::vector<std::uint32_t> before = m_list.selectedRecords();
    if (m_query.isEmpty() && m_chip == Chip::All) {
        m_list.list().setFound(std::nullopt);
        if (m_search)
            Q_EMIT countsChanged(m_search->chipCounts());
    } else {
        const Found all = search().find(m_query);
        Q_EMIT countsChanged(search().chipCounts(&all.records));
        Found found = m_chip == Chip::All ? all : search().find(m_query, m_chip);
        found.opensFamilies = !m_query.isEmpty();
        m_list.list().setFound(std::move(found));
    }
    select(before);
    Q_EMIT changed();
}

// The best is selected while it is typed; else what was selected stays so.
void GameFinder::select(const std::vector<std::uint32_t>& before)
{
    if (m_list.list().isRanked())
        m_list.selectRow(0);
    else if (!before.empty())
        m_list.selectRecords(before);
}

void GameFinder::setPredicate(const QString& maker)
{
    m_maker = maker;
    filter();
}

void GameFinder::clearPredicate()
{
    m_maker.reset();
    filter();
}

void GameFinder::setRules(const FilterRules& rules)
{
    m_rules = rules;
    filter();
}

void GameFinder::filter()
{
    const std::vector<std::uint32_t> before = m_list.selectedRecords();
    const Predicate rules = predicateOf(m_rules);
    const Predicate maker = m_maker ? makerIs(*m_maker) : Predicate();
    if (rules && maker)
        m_list.list().setPredicate([rules, maker](const GameRecord& r) { return maker(r) && rules(r); });
    else
        m_list.list().setPredicate(maker ? maker : rules);
    select(before);
    Q_EMIT changed();
}

void GameFinder::setFamilies(bool folded)
{
    m_foldsFamilies = folded;
    m_defaults.defaults().setValue(keys::GameListFamilies.name, folded);
    const std::vector<std::uint32_t> before = m_list.selectedRecords();
    applyFamilies();
    m_list.selectRecords(before);
    Q_EMIT changed();
}

void GameFinder::applyFamilies()
{
    if (!m_foldsFamilies)
        return m_list.list().setFamilies(std::nullopt);
    const std::span<const GameRecord> records = m_catalogue.records();
    std::vector<std::uint32_t> heads = familyHeads(records);
    RecordSet open(records.size());
    for (std::uint32_t record = 0; record < heads.size() && !m_open.empty(); ++record) {
        if (heads[record] == record && m_open.contains(records[record][Field::Name]))
            open.insert(record);
    }
    m_list.list().setFamilies(ArrangedList::Families{std::move(heads), std::move(open)});
}

void GameFinder::toggleFamily(int row)
{
    const ArrangedList& list = m_list.list();
    if (row < 0 || list.clones(static_cast<std::size_t>(row)) == 0)
        return;
    const std::uint32_t record = list.rows()[static_cast<std::size_t>(row)];
    const std::uint32_t head = familyHeads(m_catalogue.records())[record];
    const std::string name(m_catalogue.records()[head][Field::Name]);
    if (m_open.erase(name) == 0)
        m_open.insert(name);
    applyFamilies();
    m_list.selectRecords({record});
    Q_EMIT changed();
}

void GameFinder::showAll()
{
    m_query = Query();
    m_rules = {};
    m_maker.reset();
    setFamilies(false);
    setChip(Chip::All);
    filter();
}

void GameFinder::setRomFolders(const std::shared_ptr<const RomFolders>& folders)
{
    m_roms = folders;
    m_list.setRomFolders(folders);
    setHaves();
    const bool asked = m_chip == Chip::HaveRom
        || std::ranges::any_of(m_query.terms(), [](const Term& term) { return term.kind == TermKind::Have; });
    if (asked)
        find();
    else if (m_search)
        Q_EMIT countsChanged(m_search->chipCounts());
    Q_EMIT changed();
}

void GameFinder::setHaves()
{
    if (!m_roms)
        return;
    m_haves = m_roms->haves(m_catalogue.records());
    if (m_search)
        m_search->setHaves(m_haves);
}

std::optional<Have> GameFinder::haveOf(std::uint32_t record) const
{
    return record < m_haves.size() ? std::optional(m_haves[record]) : std::nullopt;
}

QStringList GameFinder::reasons() const
{
    QStringList why;
    if (m_chip != Chip::All)
        why << qtTrId(rowOf(m_chip).label);
    if (!m_query.isEmpty())
        why << qtTrId("hides_search");
    if (m_maker)
        why << qtTrId("hides_maker").arg(*m_maker);
    if (!m_rules.isEmpty())
        why << qtTrId("hides_rules", static_cast<int>(m_rules.rules.size()));
    if (m_foldsFamilies && m_query.isEmpty())
        why << qtTrId("hides_families");
    return why;
}

} // namespace tessera
