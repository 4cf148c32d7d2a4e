#include "info/historytext.h"
#include "info/textencoding.h"

#include "support/testmain.h"

#include <QDir>
#include <QFile>

using namespace tessera;

namespace {

constexpr auto npos = std::string_view::npos;

/// What stands on the "$info=" lines of a file: the first name of each.
std::vector<std::string> firstNames(std::string_view text)
{
    std::vector<std::string> names;
    for (std::size_t at = text.find("$info="); at != npos; at = text.find("$info=", at + 1))
        names.emplace_back(text.substr(at + 6, text.find_first_of(",\r\n", at) - at - 6));
    return names;
}

/// Where the text of a set's entry begins, in the plainest words; npos for none.
std::size_t plainStart(std::string_view text, const std::string& name, EntryKind kind)
{
    const std::string alone
        = "$info=" + name + "\r\n" + (kind == EntryKind::Mame ? "$mame" : "$bio") + "\r\n";
    if (const std::size_t at = text.find(alone); at != npos)
        return at + alone.size();
    const std::size_t named = kind == EntryKind::Bio ? text.find("$info=" + name + ",") : npos;
    const std::size_t tag = named != npos ? text.find("$bio\r\n\r\n", named) : npos;
    return tag != npos ? tag + 8 : npos;
}

/// The lines run together, byte by byte.
std::string plainlyParsed(std::string_view body)
{
    std::string parsed;
    std::string line;
    for (std::size_t i = 0; i < body.size(); ++i) {
        line += body[i];
        const bool isHalfOfAnEnd = body[i] == '\r' && i + 1 < body.size() && body[i + 1] == '\n';
        const bool ends = i + 1 == body.size() || body[i] == '\n' || (body[i] == '\r' && !isHalfOfAnEnd);
        if (!ends)
            continue;
        if (line.size() >= 3 && line.ends_with("\r\n"))
            line.resize(line.size() - 2);
        parsed += line;
        line.clear();
    }
    return parsed;
}

/// What is to be shown for a set by one file, which stands for both.
std::string plainSection(std::string_view text, const std::string& name, EntryKind kind)
{
    const bool isHistory = kind == EntryKind::Bio;
    const std::size_t start = plainStart(text, name, kind);
    if (start == npos)
        return isHistory ? "No MAME history.\r\n\r\n" : "No MAME Info\r\n";
    const std::string_view body = text.substr(start, text.find("$end", start) - start);
    return (isHistory ? "MAME History\r\n\r\n" : "MAME Info\r\n\r\n") + plainlyParsed(body) + "\r\n";
}

struct Counts {
    int all = 0;
    int alone = 0; ///< by the name alone on its line
    int first = 0; ///< by the first of several
    int filed = 0; ///< only by any name and any line end
};

} // namespace

/// Histories and notes that other people wrote, over many years.
class RealHistoryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyFileIsReadAndItsEntriesFound_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("all");
        QTest::addColumn<int>("alone");
        QTest::addColumn<int>("first");
        QTest::addColumn<int>("filed");
        const auto row = [](const char* name, const Counts& counts) {
            QTest::newRow(name) << QString::fromLatin1(name) << counts.all << counts.alone << counts.first
                                << counts.filed;
        };
        row("history-cn-2009-utf8bom-crlf.dat", {420, 373, 27, 19});
        row("history-ja-2006-sjis-crlf.dat", {3470, 3469, 0, 0});
        row("history-ja-2008-utf8-crlf.dat", {4040, 4029, 0, 10});
        row("history-ja-2010-utf8bom-crlf.dat", {4675, 4643, 0, 31});
        row("mameinfo-ja-2006-sjis-crlf.dat", {835, 835, 0, 0});
        row("mameinfo-ja-2009-utf8bom-crlf.dat", {1336, 1336, 0, 0});
        row("mameinfo-ja-2026-utf8bom-lf.dat", {1972, 0, 0, 1972});
        row("sysinfo-latin1.dat", {177, 0, 0, 176});
    }

    void everyFileIsReadAndItsEntriesFound()
    {
        QFETCH(QString, name);
        const auto file = read(name);
        QVERIFY(file.has_value());
        const EntryKind kind = kindOf(name);
        Counts counts;
        for (const std::string& set : firstNames(file->text())) {
            ++counts.all;
            if (file->entry(set, kind)) {
                const std::string line = "$info=" + set + "\r\n";
                ++(file->text().find(line) != npos ? counts.alone : counts.first);
            } else if (file->filed(set, kind)) {
                ++counts.filed;
            }
        }
        QTEST(counts.all, "all");
        QTEST(counts.alone, "alone");
        QTEST(counts.first, "first");
        QTEST(counts.filed, "filed");
    }

    void everyFileIsDecoded_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("encoding");
        const auto row = [](const char* name, TextEncoding encoding) {
            QTest::newRow(name) << QString::fromLatin1(name) << static_cast<int>(encoding);
        };
        row("history-cn-2009-utf8bom-crlf.dat", TextEncoding::Utf8);
        row("history-ja-2006-sjis-crlf.dat", TextEncoding::ShiftJis);
        row("history-ja-2008-utf8-crlf.dat", TextEncoding::Utf8);
        row("history-ja-2010-utf8bom-crlf.dat", TextEncoding::Utf8);
        row("mameinfo-ja-2006-sjis-crlf.dat", TextEncoding::ShiftJis);
        row("mameinfo-ja-2009-utf8bom-crlf.dat", TextEncoding::Utf8);
        row("mameinfo-ja-2026-utf8bom-lf.dat", TextEncoding::Utf8);
        row("sysinfo-latin1.dat", TextEncoding::ShiftJis);
    }

    void everyFileIsDecoded()
    {
        QFETCH(QString, name);
        QFETCH(int, encoding);
        QFile file(pathOf(name));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(static_cast<int>(decodedText(file.readAll().toStdString()).encoding), encoding);
    }

    void whatIsShownIsWhatStandsThere_data() { everyFileIsDecoded_data(); }

    // Every sixteenth entry, and names that no entry has.
    void whatIsShownIsWhatStandsThere()
    {
        QFETCH(QString, name);
        const auto file = read(name);
        QVERIFY(file.has_value());
        const std::string text(file->text());
        std::vector<std::string> names = firstNames(text);
        names.insert(names.begin(), {"pang", "nosuchset", "$end", "Pacman", "pacman", "puckman", " "});
        for (std::size_t i = 0; i < names.size(); i += i < 7 ? 1 : 16) {
            const std::string& set = names[i];
            if (set.empty())
                continue;
            const std::string shown = historyText({&*file, &*file}, set).text;
            const std::string expected
                = plainSection(text, set, EntryKind::Bio) + plainSection(text, set, EntryKind::Mame);
            QVERIFY2(shown == expected, set.c_str());
        }
    }

private:
    static QString pathOf(const QString& name)
    {
        return QDir(QStringLiteral(TESSERA_REAL_DATA "/history")).filePath(name);
    }
    static std::expected<InfoFile, Failure> read(const QString& name) { return InfoFile::read(pathOf(name)); }
    static EntryKind kindOf(const QString& name)
    {
        return name.startsWith("mameinfo") ? EntryKind::Mame : EntryKind::Bio;
    }
};

TESSERA_TEST(RealHistoryTest);
#include "realhistorytest.moc"
