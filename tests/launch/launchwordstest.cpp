#include "launch/launchwords.h"

#include "launch/launchroom.h"
#include "launch/ui/commandbar.h"
#include "launch/ui/commandlinefoot.h"
#include "launch/ui/folderproposal.h"
#include "launch/ui/generalpage.h"
#include "support/rows.h"
#include "support/testmain.h"
#include "support/words.h"

#include <QPushButton>

using namespace tessera;

namespace {

// The pages as the preferences show them.
struct Pages : test::Room {
    Pages()
    {
        for (OptionPage* page : pages.all())
            page->show();
    }
};

QStringList lines(const char* text)
{
    return QString::fromLatin1(text).split(u'\n');
}

// What each part of a window is to the style sheet.
QStringList rolesOf(const QWidget& window)
{
    QStringList roles;
    QList<const QWidget*> parts{&window};
    for (const QWidget* each : window.findChildren<QWidget*>())
        parts << each;
    for (const QWidget* each : std::as_const(parts)) {
        const auto* label = qobject_cast<const QLabel*>(each);
        if (const QString role = each->property("role").toString(); !role.isEmpty())
            roles << role + QStringLiteral(": ") + (label ? label->text() : each->objectName());
    }
    return roles;
}

} // namespace

class LaunchWordsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyPageSaysWhatItIsAbout_data()
    {
        QTest::addColumn<int>("page");
        QTest::addColumn<QStringList>("words");
        QTest::addColumn<QStringList>("rows");
        QTest::newRow("general") << 0 << lines(test::generalWords) << lines(test::generalRows);
        QTest::newRow("video") << 1 << lines(test::videoWords) << lines(test::videoRows);
        QTest::newRow("effects") << 2 << lines(test::effectWords) << lines(test::effectRows);
        QTest::newRow("sound") << 3 << lines(test::soundWords) << lines(test::soundRows);
        QTest::newRow("input") << 4 << lines(test::inputWords) << lines(test::inputRows);
        QTest::newRow("misc") << 5 << lines(test::miscWords) << lines(test::miscRows);
    }

    void everyPageSaysWhatItIsAbout()
    {
        QFETCH(int, page);
        Pages pages;
        QWidget& shown = *pages.pages.all()[page];
        QTEST(test::wordsOf(shown), "words");
        QTEST(test::rowsOf(shown), "rows");
        // Nothing comes twice when it is shown again.
        shown.hide();
        shown.show();
        QTEST(test::wordsOf(shown), "words");
    }

    void thePagesAreFoundByTheirIdentifiers()
    {
        Pages pages;
        QStringList identifiers;
        for (const OptionPage* page : pages.pages.all())
            identifiers << page->identifier();
        QCOMPARE(identifiers, QStringList({"general", "video", "effect", "av", "ioport", "misc"}));
    }

    void theLogAndItsCommandsSayWhatTheyAre()
    {
        test::Room room;
        room.log.setCommands(new CommandBar(room.defaults));
        QCOMPARE(test::wordsOf(room.log), lines(test::logWords));
        QCOMPARE(rolesOf(room.log),
                 QStringList({"log: infomationTextView", "foot: ", "toolbar: ", "dim: command_label",
                              "dim: command_exportlabel"}));
    }

    // Titles do not always tell it.
    void everyCommandSaysWhatIsRun()
    {
        test::Room room;
        const CommandBar bar(room.defaults);
        const auto tips = [](const QComboBox& popup) {
            QStringList list;
            for (int i = 0; i < popup.count(); ++i)
                list << popup.itemData(i, Qt::ToolTipRole).toString();
            return list;
        };
        QCOMPARE(tips(*bar.commandPop),
                 QStringList({"mame -help",
                              "mame -validate",
                              "",
                              "mame -createconfig",
                              "mame -showconfig",
                              "mame -showusage",
                              "",
                              "mame command_game -listxml",
                              "mame command_game -listfull",
                              "",
                              "mame command_game -listsource",
                              "mame command_game -listclones",
                              "mame command_game -listbrothers",
                              "mame command_game -listcrc",
                              "mame command_game -listroms",
                              "mame command_game -listsamples",
                              "",
                              "mame command_game -verifyroms",
                              "mame command_game -verifysamples",
                              "",
                              "mame command_archive -romident",
                              "mame command_executable -listdevices",
                              "mame command_executable -listslots",
                              "mame command_executable -listmedia"}));
        QCOMPARE(tips(*bar.exportPop),
                 QStringList({"mame -listfull",
                              "mame -listxml",
                              "",
                              "mame -listsource",
                              "mame -listclones",
                              "mame -listbrothers",
                              "mame -listcrc",
                              "mame -listroms",
                              "mame -listsamples",
                              "",
                              "mame -verifyroms",
                              "mame -verifysamples",
                              "",
                              "mame -listdevices",
                              "mame -listslots",
                              "mame -verifyroms",
                              "mame -verifysamples",
                              "mame -verifyroms",
                              "mame -verifysamples",
                              "mame -verifysamples"}));
        // All of them are seen at once.
        QCOMPARE(bar.commandPop->maxVisibleItems(), 24);
        QCOMPARE(bar.exportPop->maxVisibleItems(), 20);
    }

    void theCommandLineSaysWhatItIs()
    {
        const CommandLineFoot foot;
        QCOMPARE(test::wordsOf(foot),
                 QStringList({"commandLineText: named commandline_name",
                              "copyButton: commandline_copy / tip commandline_copytip"}));
        QCOMPARE(rolesOf(foot), QStringList("commandline: commandLineText"));
        // Its text is reached and read by keyboard, and leads on.
        QVERIFY(foot.commandLineText->isReadOnly());
        QVERIFY(foot.commandLineText->tabChangesFocus());
        QVERIFY(foot.commandLineText->textInteractionFlags() & Qt::TextSelectableByKeyboard);
    }

    void aProposalNamesThreeFoldersAtMost()
    {
        FolderProposal proposal("romProposal", "sentence");
        QVERIFY(proposal.isHidden());
        QSignalSpy taken(&proposal, &FolderProposal::taken);
        proposal.setFolders({"/a", "/b <i>", "/c", "/d"});
        QVERIFY(proposal.isHidden());
        proposal.setWanted(true);
        QVERIFY(!proposal.isHidden());
        QCOMPARE(proposal.objectName(), QStringLiteral("romProposal"));
        QCOMPARE(
            test::wordsOf(proposal),
            QStringList({": sentence", ": /a / tip /a", ": folder_use / named folder_use: /a",
                         ": /b <i> / tip <qt>/b &lt;i&gt;</qt>", ": folder_use / named folder_use: /b <i>",
                         ": /c / tip /c", ": folder_use / named folder_use: /c"}));
        QCOMPARE(rolesOf(proposal), QStringList({"dim: sentence", "link: ", "link: ", "link: "}));
        proposal.findChildren<QPushButton*>().at(1)->click();
        QCOMPARE(taken.takeFirst().at(0).toString(), QStringLiteral("/b <i>"));
        proposal.setFolders({"/e"});
        QCOMPARE(test::wordsOf(proposal),
                 QStringList({": sentence", ": /e / tip /e", ": folder_use / named folder_use: /e"}));
        proposal.setFolders({});
        QVERIFY(proposal.isHidden());
    }
};

TESSERA_TEST(LaunchWordsTest);
#include "launchwordstest.moc"
