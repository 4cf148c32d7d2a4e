#include "catalogue/ui/arrangedtablemodel.h"

#include "platform/defaultscontroller.h"
#include "widgets/fontname.h"

#include <algorithm>

namespace tessera {

namespace {

// The settings that a row's look depends on, besides the one that names its font.
constexpr std::array looks{
    keys::fontSize.name,           keys::GamelistColoring.name,
    keys::TableViewTextColor.name, keys::TableViewTextColor2.name,
    keys::RomsPath.name,
};

} // namespace

ArrangedTableModel::ArrangedTableModel(ArrangedList& list, DefaultsController& defaults,
                                       const Key<QLatin1StringView>& font, QObject* parent)
    : QAbstractTableModel(parent)
    , m_list(list)
    , m_defaults(defaults)
    , m_fontKey(font)
{
    readFont();
    connect(&m_list, &ArrangedList::aboutToArrange, this, [this] {
        if (!m_isChanging)
            beginResetModel();
    });
    connect(&m_list, &ArrangedList::arranged, this, [this] {
        if (!m_isChanging)
            endResetModel();
    });
    connect(&m_defaults, &DefaultsController::changed, this, &ArrangedTableModel::settingChanged);
}

void ArrangedTableModel::readFont()
{
    m_font = namedFont(m_defaults.text(m_fontKey));
    m_font.setPixelSize(qBound(4, m_defaults.index(keys::fontSize), 200));
}

void ArrangedTableModel::settingChanged(const QString& name)
{
    if (!name.isEmpty() && name != m_fontKey.name && std::ranges::find(looks, name) == looks.end())
        return;
    readFont();
    showEverything({Qt::FontRole, Qt::ForegroundRole});
}

int ArrangedTableModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_list.size());
}

void ArrangedTableModel::showEverything(const QList<int>& roles)
{
    if (const int rows = static_cast<int>(m_list.size()))
        Q_EMIT dataChanged(index(0, 0), index(rows - 1, columnCount() - 1), roles);
}

void ArrangedTableModel::showRecord(std::uint32_t record)
{
    if (const auto row = m_list.rowOf(record)) {
        const int shown = static_cast<int>(*row);
        Q_EMIT dataChanged(index(shown, 0), index(shown, columnCount() - 1));
    }
}

void ArrangedTableModel::quietly(const std::function<void()>& change)
{
    m_isChanging = true;
    change();
    m_isChanging = false;
}

void ArrangedTableModel::replace(const std::function<void()>& change)
{
    beginResetModel();
    quietly(change);
    endResetModel();
}

void ArrangedTableModel::resort(const std::function<void()>& change)
{
    Q_EMIT layoutAboutToBeChanged({}, VerticalSortHint);
    const QModelIndexList before = persistentIndexList();
    std::vector<std::uint32_t> records;
    records.reserve(static_cast<std::size_t>(before.size()));
    for (const QModelIndex& place : before)
        records.push_back(recordAt(place));
    quietly(change);
    QModelIndexList after;
    after.reserve(before.size());
    for (qsizetype i = 0; i < before.size(); ++i) {
        const auto row = m_list.rowOf(records[static_cast<std::size_t>(i)]);
        after << (row ? index(static_cast<int>(*row), before[i].column()) : QModelIndex());
    }
    changePersistentIndexList(before, after);
    Q_EMIT layoutChanged({}, VerticalSortHint);
}

} // namespace tessera
