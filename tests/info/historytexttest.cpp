#include "info/historytext.h"

#include "support/testmain.h"

using namespace tessera;

namespace {

QByteArray shown(const char* history, const char* info, std::string_view name,
                 FiledEntries filed = FiledEntries::LeaveOut)
{
    const auto fileOf = [](const char* text) {
        return text == nullptr ? std::nullopt : std::optional(InfoFile(std::string(text)));
    };
    const auto historyFile = fileOf(history);
    const auto infoFile = fileOf(info);
    const InfoFiles files{historyFile ? &*historyFile : nullptr, infoFile ? &*infoFile : nullptr};
    return QByteArray::fromStdString(historyText(files, name, filed).text);
}

constexpr char pacman[] = "$info=pacman\r\n$bio\r\n\r\nA maze\r\n$end\r\n";
constexpr char listed[] = "$info=pacman,puckman,\r\n$bio\r\n\r\nA maze\r\n$end\r\n";
constexpr char notes[] = "$info=pacman\r\n$mame\r\n0.36b1 [Somebody]\r\n\r\nBugs:\r\nNone\r\n$end\r\n";
constexpr char bareNotes[] = "$info=pacman\n$mame\n0.36b1\n\nNone\n$end\n";

} // namespace

class HistoryTextTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void bothSectionsAreShown()
    {
        QCOMPARE(shown(pacman, notes, "pacman"),
                 QByteArray("MAME History\r\n\r\n\r\nA maze\r\nMAME Info\r\n\r\n0.36b1 [Somebody]\r\n"
                            "Bugs:None\r\n"));
    }

    void aNameAloneOnItsLineKeepsTheBlankLine()
    {
        QVERIFY(shown(pacman, "", "pacman").startsWith("MAME History\r\n\r\n\r\nA maze\r\n"));
    }

    void aNameFirstOnItsLineSkipsTheBlankLine()
    {
        QVERIFY(shown(listed, "", "pacman").startsWith("MAME History\r\n\r\nA maze\r\nNo MAME Info"));
    }

    void whatIsNotFoundIsSaid()
    {
        QCOMPARE(shown(pacman, notes, "pong"), QByteArray("No MAME history.\r\n\r\nNo MAME Info\r\n"));
        QCOMPARE(shown("", "", "pong"), QByteArray("No MAME history.\r\n\r\nNo MAME Info\r\n"));
        QCOMPARE(shown(pacman, "", "Pacman"), QByteArray("No MAME history.\r\n\r\nNo MAME Info\r\n"));
    }

    void anAbsentFileHasAnEmptySectionForEveryName()
    {
        QCOMPARE(shown(nullptr, nullptr, "pong"),
                 QByteArray("MAME History\r\n\r\n\r\nMAME Info\r\n\r\n\r\n"));
        QCOMPARE(shown(nullptr, notes, "pong"), QByteArray("MAME History\r\n\r\n\r\nNo MAME Info\r\n"));
        QCOMPARE(shown(pacman, nullptr, "pong"), QByteArray("No MAME history.\r\n\r\nMAME Info\r\n\r\n\r\n"));
    }

    void aNameBehindAnotherIsNotFoundButItsPlaceIsTold()
    {
        const InfoFile history((std::string(listed)));
        const InfoFile info((std::string(notes)));
        const HistoryText text = historyText({&history, &info}, "puckman");
        QCOMPARE(text.text, std::string("No MAME history.\r\n\r\nNo MAME Info\r\n"));
        QCOMPARE(text.filedUnder.value_or(""), std::string("pacman"));
    }

    void bareLineFeedsAreNotFoundButTheirPlaceIsTold()
    {
        const InfoFile history((std::string(pacman)));
        const InfoFile info((std::string(bareNotes)));
        const HistoryText text = historyText({&history, &info}, "pacman");
        QVERIFY(text.text.ends_with("A maze\r\nNo MAME Info\r\n"));
        QCOMPARE(text.filedUnder.value_or(""), std::string("pacman"));
    }

    void nothingIsToldOfWhatIsShown()
    {
        const InfoFile history((std::string(listed)));
        const InfoFile info((std::string(notes)));
        QVERIFY(!historyText({&history, &info}, "pacman").filedUnder);
        QVERIFY(!historyText({&history, &info}, "pong").filedUnder);
        QVERIFY(!historyText({nullptr, nullptr}, "pong").filedUnder);
    }

    void whatIsFiledElsewhereIsShownWhenAskedFor()
    {
        QCOMPARE(shown(listed, bareNotes, "puckman", FiledEntries::Show),
                 QByteArray("MAME History\r\n\r\n\r\nA maze\r\nNo MAME Info\r\n"));
        // Lines that a line feed ends stay lines.
        QCOMPARE(shown(pacman, bareNotes, "pacman", FiledEntries::Show),
                 QByteArray("MAME History\r\n\r\n\r\nA maze\r\nMAME Info\r\n\r\n0.36b1\n\nNone\n\r\n"));
    }
};

TESSERA_TEST(HistoryTextTest);
#include "historytexttest.moc"
