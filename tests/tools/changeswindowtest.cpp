#include "tools/ui/changeswindow.h"

#include "support/testmain.h"
#include "tools/ui/rowslist.h"
#include "tools/ui/rowsmodel.h"

#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTabBar>

using namespace tessera;

namespace {

using Kind = MachineChange::Kind;

CatalogueComparison comparisonOf(const std::vector<MachineChange>& changes)
{
    CatalogueComparison comparison;
    comparison.changes = changes;
    for (const MachineChange& change : changes) {
        ++comparison.counts[static_cast<std::size_t>(change.kind)];
        comparison.favourites += change.isFavourite ? 1 : 0;
    }
    return comparison;
}

const CatalogueComparison everyKind = comparisonOf({
    {Kind::Added, "pacman", "Pac-Man", "", "", true},
    {Kind::Added, "qix", "Qix", "", "", false},
    {Kind::Gone, "pong", "Pong", "", "", true},
    {Kind::Renamed, "puckman", "Puck Man", "puckmana", "", true},
    {Kind::Status, "galaga", "Galaga", "", "good", true},
});

QStringList tabs(const ChangesWindow& window)
{
    QStringList list;
    for (int tab = 0; tab < window.kinds->count(); ++tab)
        list << window.kinds->tabText(tab);
    return list;
}

QStringList rows(const ChangesWindow& window)
{
    QStringList list;
    for (int row = 0; row < window.rows->rowCount(); ++row)
        list << window.rows->index(row, 0).data().toString() + QStringLiteral(": ")
                + window.rows->index(row, 1).data().toString();
    return list;
}

} // namespace

class ChangesWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eachKindHasATab()
    {
        ChangesWindow window;
        window.show(everyKind);
        QVERIFY(window.isVisible());
        QCOMPARE(window.summary->text(), "changes_summarychanges_summary_favourites");
        QCOMPARE(tabs(window),
                 QStringList({"changes_favourites_tab", "changes_added", "changes_gone", "changes_renamed",
                              "changes_status"}));
        const QString dash = QString::fromUtf8("–");
        const QList<QStringList> expected{{"pacman: changes_is_new · Pac-Man", "pong: changes_is_gone · Pong",
                                           "puckman: changes_was · Puck Man",
                                           "galaga: " + dash + QString::fromUtf8(" → good · Galaga")},
                                          {"pacman: Pac-Man", "qix: Qix"},
                                          {"pong: Pong"},
                                          {"puckman: changes_was · Puck Man"},
                                          {"galaga: " + dash + QString::fromUtf8(" → good · Galaga")}};
        for (int tab = 0; tab < expected.size(); ++tab) {
            window.kinds->setCurrentIndex(tab);
            QCOMPARE(rows(window), expected[tab]);
        }
    }

    void kindsThatDidNotComeAboutHaveNone()
    {
        ChangesWindow window;
        window.show(everyKind);
        window.filterField->setText("pac");
        window.show(comparisonOf({{Kind::Gone, "pong", "Pong", "", "", false}}));
        QCOMPARE(tabs(window), QStringList{"changes_gone"});
        QCOMPARE(rows(window), QStringList{"pong: Pong"});
        QCOMPARE(window.filterField->text(), QString());
        window.show({});
        QVERIFY(!window.kinds->isVisible() && !window.filterField->isVisible());
        QCOMPARE(rows(window), QStringList());
        QCOMPARE(window.summary->text(), "changes_none");
    }

    void rowsAreFiltered()
    {
        ChangesWindow window;
        window.show(everyKind);
        window.filterField->setText("P");
        QCOMPARE(window.rows->rowCount(), 3);
        window.kinds->setCurrentIndex(1);
        QCOMPARE(rows(window), QStringList{"pacman: Pac-Man"});
    }

    void aRowOpensItsMachine()
    {
        ChangesWindow window;
        QSignalSpy opened(&window, &ChangesWindow::opened);
        window.show(everyKind);
        window.kinds->setCurrentIndex(3);
        window.changes->setCurrentIndex(window.rows->index(0, 0));
        QTest::keyClick(window.changes, Qt::Key_Return);
        QCOMPARE(opened.size(), 1);
        QCOMPARE(opened.front().front().toString(), "puckman");
    }
};

TESSERA_TEST(ChangesWindowTest);
#include "changeswindowtest.moc"
