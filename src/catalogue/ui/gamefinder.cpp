#include "catalogue/ui/gamefinder.h"

#include "catalogue/catalogue.h"
#include "catalogue/families.h"
#include "catalogue/ui/gamelistcontroller.h"
#include "platform/defaultscontroller.h"

#include <algorithm>
#include <utility>

namespace tessera {

namespace {

const ChipRow& rowOf(Chip chip)
{
    return *std::ranges::find(chips, chip, &ChipRow::chip);
}

// So many records are taken out of what was prepared one by one; more are prepared anew.
constexpr std::size_t mostSingly = 64;

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
    connect(&list, &GameListController::contentChanged, this, &GameFinder::takeContent);
    connect(&list.list(), &ArrangedList::arranged, this, [this] {
        if (!m_isRearranging)
            Q_EMIT changed();
    });
    connect(&catalogue, &Catalogue::recordChanged, this, &GameFinder::follow);
}

void GameFinder::restore()
{
    const QString chip = m_defaults.stored().string(keys::GameListChip.name);
    const auto row
        = std::ranges::find_if(chips, [&](const ChipRow& each) { return chip == textOf(each.name); });
    m_chip = row == chips.end() ? Chip::All : row->chip;
    m_foldsFamilies = m_defaults.stored().flag(keys::GameListFamilies.name);
    forget();
    showContent();
}

GameSearch& GameFinder::search()
{
    if (!m_search) {
        m_search.emplace(m_catalogue.records());
        m_search->setHaves(m_haves);
        if (!m_favourites.empty())
            m_search->setFavourites(m_favourites, m_catalogue.records());
        foldTexts(*m_search);
    }
    return *m_search;
}

// What is not ASCII is folded beside the windows; until then it is found by its ASCII only.
void GameFinder::foldTexts(GameSearch& search)
{
    m_folding.request_stop();
    m_folding = std::stop_source();
    m_pool.start(
        [this, generation = m_generation, stop = m_folding.get_token(), unfolded = search.unfolded()] {
            auto folded = std::make_shared<FoldedTexts>(SearchTexts::fold(unfolded, stop));
            if (stop.stop_requested())
                return;
            QMetaObject::invokeMethod(
                this,
                [this, generation, folded] {
                    if (generation != m_generation || !m_search)
                        return;
                    m_search->take(std::move(*folded));
                    if (m_query.isEmpty())
                        return;
                    refresh();
                    if (m_list.list().isRanked() && m_list.firstRow() < 0)
                        m_list.selectRow(0);
                },
                Qt::QueuedConnection);
        });
}

void GameFinder::prepare()
{
    search();
    tellCounts();
}

// What is kept of the records follows, and then what the list shows of them.
void GameFinder::takeContent(ContentChange change, const std::vector<std::uint32_t>& records)
{
    const bool isSmall = m_search && records.size() <= mostSingly;
    if (isSmall && change == ContentChange::Removed)
        takeOut(records);
    else if (isSmall && change == ContentChange::PutBack)
        putBack(records);
    else
        forget();
    showContent();
}

void GameFinder::showContent()
{
    m_heads.clear();
    m_filtered.reset();
    applyFamilies();
    find();
}

// The records are others now: what was kept of them counts no more.
void GameFinder::forget()
{
    const bool wasPrepared = m_search.has_value();
    ++m_generation;
    m_search.reset();
    m_haves.clear();
    askHaves();
    if (wasPrepared)
        search();
}

void GameFinder::follow(std::uint32_t record, Field field)
{
    const GameRecord& now = m_catalogue.records()[record];
    if (m_search)
        m_search->replace(record, now);
    if (field == Field::Name || field == Field::Cloneof) {
        m_heads.clear();
        askHavesAgain();
        if (record < m_haves.size()) {
            m_haves[record] = m_roms->have(now);
            if (m_search)
                m_search->setHaves(m_haves);
        }
    }
    m_filtered.reset();
    if (m_search)
        tellCounts();
    Q_EMIT changed();
}

void GameFinder::takeOut(const std::vector<std::uint32_t>& records)
{
    for (auto record = records.rbegin(); record != records.rend(); ++record) {
        m_search->remove(*record);
        if (!m_haves.empty())
            m_haves.erase(m_haves.begin() + *record);
    }
    askHavesAgain();
}

void GameFinder::putBack(const std::vector<std::uint32_t>& records)
{
    for (const std::uint32_t record : records) {
        const GameRecord& back = m_catalogue.records()[record];
        const Have have = m_haves.empty() ? Have::Missing : m_roms->have(back);
        m_search->insert(record, back, have);
        if (!m_haves.empty())
            m_haves.insert(m_haves.begin() + record, have);
    }
    askHavesAgain();
}

std::vector<std::uint32_t> GameFinder::suggestions(const QString& text, std::size_t most)
{
    const Query query(text);
    if (query.isEmpty())
        return {};
    const Found found = search().find(query);
    std::vector<std::uint32_t> records = found.records.records();
    const auto end = records.begin() + static_cast<std::ptrdiff_t>(std::min(most, records.size()));
    const auto fits = [&](std::uint32_t record) {
        return std::pair(found.ranks.empty() ? 0U : found.ranks[record], record);
    };
    std::ranges::partial_sort(records, end, {}, fits);
    records.erase(end, records.end());
    return records;
}

// The best is first, and is selected while it is typed. Once the user has sorted it stays so until another
// search begins.
void GameFinder::setQuery(const QString& text)
{
    const bool wasEmpty = m_query.isEmpty();
    m_query = Query(text);
    m_list.forgetReturn();
    if (m_query.isEmpty() && wasEmpty)
        return;
    rearrange([&] { find(wasEmpty ? ArrangedList::Ranking::Anew : ArrangedList::Ranking::AsBefore); });
    if (m_list.list().isRanked())
        m_list.selectRow(0);
}

void GameFinder::setChip(Chip chip)
{
    m_chip = chip;
    m_defaults.keep(keys::GameListChip, textOf(rowOf(chip).name));
    refresh();
}

void GameFinder::refresh()
{
    rearrange([this] { find(); });
}

// What the user has selected stays so, and where it stands. However many steps it takes, it is told once.
void GameFinder::rearrange(auto&& change)
{
    m_isRearranging = true;
    {
        const ListController::Rearranging keeping(m_list);
        change();
    }
    m_isRearranging = false;
    Q_EMIT changed();
}

// Before the ROM folders are known nobody can be told to have nothing.
Chip GameFinder::effectiveChip() const
{
    return m_chip == Chip::HaveRom && m_haves.empty() ? Chip::All : m_chip;
}

const std::optional<RecordSet>& GameFinder::filtered()
{
    if (m_filtered || (!m_maker && m_rules.isEmpty()))
        return m_filtered;
    const Predicate rules = predicateOf(m_rules);
    const Predicate maker = m_maker ? makerIs(*m_maker) : Predicate();
    if (rules && maker)
        m_filtered = recordsWhere(m_catalogue.records(),
                                  [&](const GameRecord& record) { return maker(record) && rules(record); });
    else if (rules || maker)
        m_filtered = recordsWhere(m_catalogue.records(), rules ? rules : maker);
    return m_filtered;
}

// What query and filter let through, whatever the chip.
Found GameFinder::found()
{
    Found found = search().findOrNearest(m_query);
    if (const auto& filter = filtered())
        found.records.keep(*filter);
    found.opensFamilies = !m_query.isEmpty();
    return found;
}

void GameFinder::find(ArrangedList::Ranking ranking)
{
    const Chip chip = effectiveChip();
    if (m_query.isEmpty() && chip == Chip::All && !filtered()) {
        m_list.list().setFound(std::nullopt, ranking);
        if (m_search)
            Q_EMIT countsChanged(m_search->chipCounts());
    } else {
        Found records = found();
        Q_EMIT countsChanged(search().chipCounts(&records.records));
        search().keep(chip, records.records);
        m_list.list().setFound(std::move(records), ranking);
    }
}

void GameFinder::tellCounts()
{
    const Found records = found();
    Q_EMIT countsChanged(search().chipCounts(&records.records));
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
    const bool wereEmpty = m_rules.isEmpty();
    m_rules = rules;
    if (!m_rules.isEmpty() || !wereEmpty)
        filter();
}

void GameFinder::filter()
{
    m_filtered.reset();
    refresh();
}

void GameFinder::setFamilies(bool folded)
{
    m_foldsFamilies = folded;
    m_defaults.keep(keys::GameListFamilies, folded);
    rearrange([this] { applyFamilies(); });
}

const std::vector<std::uint32_t>& GameFinder::heads()
{
    if (m_heads.empty())
        m_heads = familyHeads(m_catalogue.records());
    return m_heads;
}

void GameFinder::applyFamilies()
{
    if (!m_foldsFamilies)
        return m_list.list().setFamilies(std::nullopt);
    const std::span<const GameRecord> records = m_catalogue.records();
    RecordSet open(records.size());
    for (std::uint32_t record = 0; record < heads().size() && !m_open.empty(); ++record) {
        if (heads()[record] == record && m_open.contains(records[record][Field::Name]))
            open.insert(record);
    }
    m_list.list().setFamilies(ArrangedList::Families{heads(), std::move(open)});
}

void GameFinder::toggleFamily(int row)
{
    const ArrangedList& list = m_list.list();
    if (row < 0 || list.clones(static_cast<std::size_t>(row)) == 0)
        return;
    const std::uint32_t record = list.rows()[static_cast<std::size_t>(row)];
    const std::string name(m_catalogue.records()[heads()[record]][Field::Name]);
    if (m_open.erase(name) == 0)
        m_open.insert(name);
    rearrange([this] { applyFamilies(); });
    m_list.selectRecords({record});
}

void GameFinder::showAll()
{
    m_query = Query();
    m_rules = {};
    m_maker.reset();
    m_filtered.reset();
    m_foldsFamilies = false;
    m_chip = Chip::All;
    m_defaults.keep(keys::GameListFamilies, false);
    m_defaults.keep(keys::GameListChip, textOf(rowOf(m_chip).name));
    rearrange([this] {
        applyFamilies();
        find();
    });
}

void GameFinder::setRomFolders(const std::shared_ptr<const RomFolders>& folders)
{
    m_roms = folders;
    m_list.setRomFolders(folders);
    askHaves();
}

void GameFinder::setFavourites(const NameSet& favorites)
{
    if (m_favourites == favorites)
        return;
    m_favourites = favorites;
    if (m_search)
        m_search->setFavourites(favorites, m_catalogue.records());
    if (m_chip == Chip::Favorites)
        refresh();
    else if (m_search)
        tellCounts();
}

// Beside the windows: a folder that cannot be listed is asked for each name.
void GameFinder::askHaves()
{
    const int question = ++m_havesQuestion;
    if (!m_roms)
        return;
    m_pool.start([this, question, folders = m_roms, sets = RomFolders::setNames(m_catalogue.records())] {
        auto haves = std::make_shared<std::vector<Have>>(folders->haves(sets));
        QMetaObject::invokeMethod(
            this, [this, question, haves] { takeHaves(question, std::move(*haves)); }, Qt::QueuedConnection);
    });
}

// An answer that is under way tells of the records as they were.
void GameFinder::askHavesAgain()
{
    if (m_havesAnswered != m_havesQuestion)
        askHaves();
}

void GameFinder::takeHaves(int question, std::vector<Have> haves)
{
    if (question != m_havesQuestion || haves.size() != m_catalogue.records().size())
        return;
    m_havesAnswered = question;
    m_haves = std::move(haves);
    if (m_search)
        m_search->setHaves(m_haves);
    const bool asked = m_chip == Chip::HaveRom
        || std::ranges::any_of(m_query.terms(), [](const Term& term) { return term.kind == TermKind::Have; });
    if (asked)
        refresh();
    else if (m_search)
        tellCounts();
    Q_EMIT havesChanged();
}

std::optional<Have> GameFinder::haveOf(std::uint32_t record) const
{
    return record < m_haves.size() ? std::optional(m_haves[record]) : std::nullopt;
}

QStringList GameFinder::reasons() const
{
    constexpr qsizetype mostOfMaker = 40;
    QStringList why;
    if (effectiveChip() != Chip::All)
        why << qtTrId(rowOf(m_chip).label);
    if (!m_query.isEmpty())
        why << qtTrId("hides_search");
    if (m_maker) {
        const bool isLong = m_maker->size() > mostOfMaker;
        why << qtTrId("hides_maker").arg(isLong ? QString(m_maker->left(mostOfMaker) + u'…') : *m_maker);
    }
    if (!m_rules.isEmpty())
        why << qtTrId("hides_rules", static_cast<int>(m_rules.rules.size()));
    if (m_foldsFamilies && m_query.isEmpty())
        why << qtTrId("hides_families");
    return why;
}

} // namespace tessera
