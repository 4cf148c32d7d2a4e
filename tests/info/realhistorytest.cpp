#include "info/infofile.h"

#include "support/testmain.h"

#include <QDir>

using namespace tessera;

namespace {

/// What stands on the "$info=" lines of a file: the first name of each.
std::vector<std::string> firstNames(std::string_view text)
{
    std::vector<std::string> names;
    for (std::size_t at = text.find("$info="); at != std::string_view::npos; at = text.find("$info=", at + 1))
        names.emplace_back(text.substr(at + 6, text.find_first_of(",\r\n", at) - at - 6));
    return names;
}

} // namespace

/// Histories and notes that other people wrote, over many years.
class RealHistoryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyFileIsReadAndItsEntriesFound_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("encoding");
        QTest::addColumn<int>("exact"); // per cent, at least
        QTest::addColumn<int>("any");
        const auto row = [](const char* name, TextEncoding encoding, int exact, int any) {
            QTest::newRow(name) << QString::fromLatin1(name) << static_cast<int>(encoding) << exact << any;
        };
        row("history-cn-2009-utf8bom-crlf.dat", TextEncoding::Utf8, 88, 99);
        row("history-ja-2006-sjis-crlf.dat", TextEncoding::ShiftJis, 97, 99);
        row("history-ja-2008-utf8-crlf.dat", TextEncoding::Utf8, 97, 99);
        row("history-ja-2010-utf8bom-crlf.dat", TextEncoding::Utf8, 97, 99);
        row("mameinfo-ja-2006-sjis-crlf.dat", TextEncoding::ShiftJis, 95, 95);
        row("mameinfo-ja-2009-utf8bom-crlf.dat", TextEncoding::Utf8, 95, 95);
        row("mameinfo-ja-2026-utf8bom-lf.dat", TextEncoding::Utf8, 0, 95);
        row("sysinfo-latin1.dat", TextEncoding::ShiftJis, 0, 95);
    }

    void everyFileIsReadAndItsEntriesFound()
    {
        QFETCH(QString, name);
        QFETCH(int, encoding);
        QFETCH(int, exact);
        QFETCH(int, any);
        const auto file = InfoFile::read(QDir(QStringLiteral(TESSERA_REAL_DATA "/history")).filePath(name));
        QVERIFY(file.has_value());
        QCOMPARE(static_cast<int>(file->encoding().value()), encoding);
        const EntryKind kind = name.startsWith("mameinfo") ? EntryKind::Mame : EntryKind::Bio;
        const std::vector<std::string> names = firstNames(file->text());
        int found = 0;
        int alone = 0;
        int filed = 0;
        for (const std::string& set : names) {
            if (file->entry(set, kind)) {
                ++found;
                const std::string line
                    = "$info=" + set + "\r\n" + (kind == EntryKind::Mame ? "$mame" : "$bio");
                alone += file->text().find(line + "\r\n") != std::string_view::npos ? 1 : 0;
            } else if (file->filed(set, kind)) {
                ++filed;
            }
        }
        const int all = static_cast<int>(names.size());
        qInfo("%d entries: %d by the name alone, %d by the first of several, %d otherwise", all, alone,
              found - alone, filed);
        QVERIFY(all > 0);
        QVERIFY2(found * 100 >= exact * all, qPrintable(QString::number(found)));
        QVERIFY2((found + filed) * 100 >= any * all, qPrintable(QString::number(found + filed)));
    }
};

TESSERA_TEST(RealHistoryTest);
#include "realhistorytest.moc"
