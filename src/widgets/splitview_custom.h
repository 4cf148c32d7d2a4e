#pragma once

#include <QObject>
#include <QPointer>
#include <QSplitter>

namespace tessera {

/// Keeps the dividers of split views within their limits, and the first pane at its size when the window is
/// resized. A split view's identifier is its object name; its panes stand in it already.
class SplitView_custom : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    QSplitter* splitView() const { return m_splitView; }
    void setSplitView(QSplitter* splitView);
    QSplitter* splitView2() const { return m_splitView2; }
    void setSplitView2(QSplitter* splitView);

private:
    QPointer<QSplitter> m_splitView;
    QPointer<QSplitter> m_splitView2;
};

} // namespace tessera
