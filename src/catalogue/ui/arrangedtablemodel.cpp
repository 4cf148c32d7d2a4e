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
    connect(&m_list, &ArrangedList::aboutToArrange, this, &ArrangedTableModel::beginArranging);
    connect(&m_list, &ArrangedList::arranged, this, &ArrangedTableModel::endArranging);
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

void ArrangedTableModel::beginArranging(ArrangedList::Change change)
{
    if (change != ArrangedList::Change::Order)
        return beginResetModel();
    Q_EMIT layoutAboutToBeChanged({}, VerticalSortHint);
    m_places = persistentIndexList();
    m_recordsThere.clear();
    for (const QModelIndex& place : m_places)
        m_recordsThere.push_back(recordAt(place));
}

void ArrangedTableModel::endArranging(ArrangedList::Change change)
{
    if (change != ArrangedList::Change::Order)
        return endResetModel();
    QModelIndexList now;
    now.reserve(m_places.size());
    for (qsizetype i = 0; i < m_places.size(); ++i) {
        const auto row = m_list.rowOf(m_recordsThere[static_cast<std::size_t>(i)]);
        now << (row ? index(static_cast<int>(*row), m_places[i].column()) : QModelIndex());
    }
    changePersistentIndexList(m_places, now);
    Q_EMIT layoutChanged({}, VerticalSortHint);
}

} // namespace tessera
