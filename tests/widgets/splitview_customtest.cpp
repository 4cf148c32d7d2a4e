#include "widgets/splitview_custom.h"

#include "support/testmain.h"

#include <QLabel>
#include <QSplitter>

using namespace tessera;

namespace {

constexpr int width = 800;

std::unique_ptr<QSplitter> makeSplitter(const QString& identifier, Qt::Orientation orientation)
{
    auto splitter = std::make_unique<QSplitter>(orientation);
    splitter->setObjectName(identifier);
    splitter->setHandleWidth(1);
    // Panes that would rather be wider than the limits let them be.
    for (int i = 0; i < 2; ++i)
        splitter->addWidget(new QLabel(QString(50, u'W')));
    return splitter;
}

int extent(const QSplitter& splitter, int pane)
{
    return splitter.sizes().at(pane);
}

void drag(QSplitter& splitter, int distance)
{
    QWidget* handle = splitter.handle(1);
    const QPoint from = handle->rect().center();
    const QPoint way = splitter.orientation() == Qt::Horizontal ? QPoint(distance, 0) : QPoint(0, distance);
    QTest::mousePress(handle, Qt::LeftButton, {}, from);
    // The handle follows, so that its own place is what moves.
    QTest::mouseMove(handle, from + way);
    QTest::mouseRelease(handle, Qt::LeftButton, {}, from);
}

} // namespace

class SplitView_customTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aDraggedDividerStopsThere_data()
    {
        QTest::addColumn<QString>("identifier");
        QTest::addColumn<Qt::Orientation>("orientation");
        QTest::addColumn<int>("first");
        QTest::addColumn<int>("second");
        QTest::newRow("main") << "MainSplitView" << Qt::Horizontal << 236 << 18;
        QTest::newRow("second") << "SecondSplitView" << Qt::Horizontal << 173 << 0;
        QTest::newRow("the favourites' main") << "MainSplitView2" << Qt::Horizontal << 236 << 18;
        QTest::newRow("the favourites' second") << "SecondSplitView2" << Qt::Horizontal << 173 << 0;
        QTest::newRow("another") << "Another" << Qt::Horizontal << 173 << 18;
        QTest::newRow("in other letters") << "mainsplitview" << Qt::Horizontal << 173 << 18;
        QTest::newRow("without a name") << "" << Qt::Horizontal << 173 << 18;
        QTest::newRow("main, one above the other") << "MainSplitView" << Qt::Vertical << 236 << 18;
    }

    void aDraggedDividerStopsThere()
    {
        QFETCH(QString, identifier);
        QFETCH(Qt::Orientation, orientation);
        QFETCH(int, first);
        QFETCH(int, second);
        const auto splitter = makeSplitter(identifier, orientation);
        SplitView_custom limits;
        limits.setSplitView(splitter.get());
        QCOMPARE(limits.splitView(), splitter.get());
        splitter->resize(width, width);
        splitter->show();
        splitter->setSizes({400, width - 1 - 400});
        drag(*splitter, -width);
        QCOMPARE(extent(*splitter, 0), first);
        drag(*splitter, width);
        QCOMPARE(extent(*splitter, 1), second);
        drag(*splitter, -200);
        QVERIFY(extent(*splitter, 0) > first && extent(*splitter, 1) > second);
    }

    void theFirstPaneKeepsItsSize()
    {
        const auto splitter = makeSplitter(QStringLiteral("MainSplitView2"), Qt::Horizontal);
        splitter->addWidget(new QLabel);
        SplitView_custom limits;
        limits.setSplitView2(splitter.get());
        QCOMPARE(limits.splitView2(), splitter.get());
        splitter->resize(width, 300);
        splitter->show();
        splitter->setSizes({300, 300, 198});
        for (const int size : {1400, 700, 1000}) {
            splitter->resize(size, 300);
            QCOMPARE(extent(*splitter, 0), 300);
            QCOMPARE(extent(*splitter, 1) + extent(*splitter, 2), size - 302);
        }
    }

    void aPaneThatWasFoldedAwayComesBack()
    {
        const auto before = makeSplitter(QStringLiteral("MainSplitView"), Qt::Horizontal);
        before->resize(width, 300);
        before->show();
        before->setSizes({0, width});
        QCOMPARE(extent(*before, 0), 0);

        const auto splitter = makeSplitter(QStringLiteral("MainSplitView"), Qt::Horizontal);
        SplitView_custom limits;
        limits.setSplitView(splitter.get());
        splitter->resize(width, 300);
        splitter->show();
        QVERIFY(splitter->restoreState(before->saveState()));
        QCOMPARE(extent(*splitter, 0), 236);
    }
};

TESSERA_TEST(SplitView_customTest);
#include "splitview_customtest.moc"
