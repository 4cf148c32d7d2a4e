#include "launch/ui/commandbar.h"

#include "launch/launchroom.h"
#include "support/testmain.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QProgressBar>
#include <QPushButton>

using namespace tessera;
using tessera::test::Room;

class CommandBarTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothingButStopIsOfferedWhileOneRuns()
    {
        Room room;
        auto& bar = *new CommandBar(room.defaults);
        room.log.setCommands(&bar);
        room.log.show();
        QVERIFY(QTest::qWaitForWindowActive(&room.log));
        const auto state = [&bar] {
            QStringList names;
            for (const QWidget* each : bar.findChildren<QWidget*>()) {
                if (!each->objectName().isEmpty() && each->isVisible() && each->parentWidget() == &bar)
                    names << (each->isEnabled() ? each->objectName() : '(' + each->objectName() + ')');
            }
            names.sort(Qt::CaseInsensitive);
            return names.join(' ');
        };
        const QString idle("commandPop exportButton exportPop returnButton");
        QCOMPARE(state(), idle);
        bar.exportButton->setFocus();
        bar.setBusy(true);
        QCOMPARE(state(), QStringLiteral("(commandPop) (exportButton) (exportPop) progressInd stopButton"));
        QVERIFY(!bar.returnButton->isEnabled());
        QVERIFY(bar.stopButton->hasFocus());
        bar.setBusy(false);
        QCOMPARE(state(), idle);
        QVERIFY(bar.exportButton->hasFocus());
        // From anywhere else too.
        room.log.saveButton->setFocus();
        bar.setBusy(true);
        QVERIFY(bar.stopButton->hasFocus());
    }

    void stopStandsWhereRunStood()
    {
        Room room;
        const CommandBar bar(room.defaults);
        QStringList names;
        for (int i = 0; i < bar.layout()->count(); ++i) {
            if (const QWidget* each = bar.layout()->itemAt(i)->widget())
                names << (each->objectName().isEmpty() ? QStringLiteral("-") : each->objectName());
        }
        QCOMPARE(names,
                 QStringList({"-", "commandPop", "returnButton", "stopButton", "-", "exportPop",
                              "exportButton", "progressInd"}));
        QVERIFY(bar.stopButton->minimumWidth() >= bar.returnButton->sizeHint().width());
        // However long the titles are, they do not widen the window; and nothing moves when one begins.
        QCOMPARE(bar.sizePolicy().horizontalPolicy(), QSizePolicy::Ignored);
        QVERIFY(bar.progressInd->sizePolicy().retainSizeWhenHidden());
    }

    void nobodyKnowsHowLongACommandTakes()
    {
        Room room;
        const CommandBar bar(room.defaults);
        QCOMPARE(bar.progressInd->minimum(), 0);
        QCOMPARE(bar.progressInd->maximum(), 0);
        QVERIFY(!bar.progressInd->isTextVisible());
    }

    void thePopUpsKeepTheirPositions()
    {
        Room room;
        room.defaults.setIndex(keys::Commandoption, 20);
        room.defaults.setIndex(keys::Commandexport, 19);
        const CommandBar bar(room.defaults);
        QCOMPARE(bar.commandPop->currentText(), QStringLiteral("-romident"));
        QCOMPARE(bar.exportPop->currentText(), QStringLiteral("-verifysoftlist"));
        room.defaults.setIndex(keys::Commandoption, 5);
        room.defaults.setIndex(keys::Commandexport, 1);
        QCOMPARE(bar.commandPop->currentText(), QStringLiteral("-showusage"));
        QCOMPARE(bar.exportPop->currentText(), QStringLiteral("-listxml"));
    }
};

TESSERA_TEST(CommandBarTest);
#include "commandbartest.moc"
