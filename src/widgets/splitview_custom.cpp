#include "widgets/splitview_custom.h"

#include <QSplitter>

#include <array>

namespace tessera {

namespace {

/// Added to the smallest and to the largest position that is proposed for a divider: to nought, and to where
/// the second pane ends.
struct DividerLimits {
    QLatin1StringView identifier;
    int smallest;
    int largest;
};

// clang-format off
constexpr std::array limitsTable{
    DividerLimits{QLatin1StringView("MainSplitView"),    236, -18},
    DividerLimits{QLatin1StringView("MainSplitView2"),   236, -18},
    DividerLimits{QLatin1StringView("SecondSplitView"),  173,   0},
    DividerLimits{QLatin1StringView("SecondSplitView2"), 173,   0},
};
constexpr DividerLimits anyOther{QLatin1StringView(),    173, -18};
// clang-format on

const DividerLimits& limitsOf(const QString& identifier)
{
    for (const DividerLimits& row : limitsTable) {
        if (row.identifier == identifier)
            return row;
    }
    return anyOther;
}

void setLeast(QWidget& pane, Qt::Orientation orientation, int extent)
{
    if (orientation == Qt::Horizontal)
        pane.setMinimumWidth(extent);
    else
        pane.setMinimumHeight(extent);
}

// The split view itself lets a divider go from end to end; a pane's least extent is what stops it.
void apply(QSplitter& splitView)
{
    const DividerLimits& limits = limitsOf(splitView.objectName());
    for (int i = 0; i < splitView.count(); ++i) {
        splitView.setStretchFactor(i, i == 0 ? 0 : 1);
        splitView.setCollapsible(i, false);
    }
    if (splitView.count() < 2)
        return;
    setLeast(*splitView.widget(0), splitView.orientation(), limits.smallest);
    const int room = -limits.largest;
    // A least extent of nought would mean the pane's own.
    setLeast(*splitView.widget(1), splitView.orientation(), qMax(1, room));
    splitView.setCollapsible(1, room == 0);
}

} // namespace

void SplitView_custom::setSplitView(QSplitter* splitView)
{
    m_splitView = splitView;
    if (splitView != nullptr)
        apply(*splitView);
}

void SplitView_custom::setSplitView2(QSplitter* splitView)
{
    m_splitView2 = splitView;
    if (splitView != nullptr)
        apply(*splitView);
}

} // namespace tessera
