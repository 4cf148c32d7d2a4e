#pragma once

#include "catalogue/storedcatalogue.h"

#include <QByteArray>
#include <QFile>
#include <QString>
#include <QStringList>

#include <array>
#include <initializer_list>
#include <optional>
#include <random>
#include <string>

namespace tessera::test {

/// What stands for an absent value in the tests' tables.
inline constexpr const char* absent = nullptr;

/// Records made by a test, with the arena that owns their texts.
struct SampleRecords {
    StoredCatalogue store;

    /// The nine values in the order of the fields; `absent` for none.
    void add(std::initializer_list<const char*> values)
    {
        GameRecord record;
        std::size_t field = 0;
        for (const char* value : values) {
            if (value != absent)
                record.values[field] = store.arena.add(value);
            ++field;
        }
        store.records.push_back(record);
    }

    void addNamed(const char* name) { add({"game", name, name, name, name, "1980", "Maker", "good", ""}); }
};

/// A record as a line that a failed comparison can show; an absent value reads "-", others stand in quotes.
inline QString line(const GameRecord& record)
{
    QStringList values;
    for (const std::string_view value : record.values) {
        const auto text = QString::fromUtf8(value.data(), static_cast<qsizetype>(value.size()));
        values << (value.data() == nullptr ? QStringLiteral("-") : QStringLiteral("'%1'").arg(text));
    }
    return values.join(QStringLiteral(" "));
}

inline QStringList lines(const std::vector<GameRecord>& records)
{
    QStringList all;
    for (const GameRecord& record : records)
        all << line(record);
    return all;
}

/// Texts of all kinds of characters, the same ones in every run.
class RandomTexts
{
public:
    std::string text()
    {
        static constexpr std::array pieces{"a",         "Pac-Man", "&",        "<",    ">",   "\"",
                                           "'",         "]]>",     "&amp;",    "&#9;", "\t",  "\n",
                                           "\r",        "\r\n",    " ",        "  ",   "é",   "ゲーム",
                                           "😀",        "(rev 1)", "????",     "<!--", "-->", "</attribute>",
                                           "<![CDATA[", "\x7F",    "\xC2\x85", "%1"};
        std::string made;
        for (int i = number(12); i > 0; --i)
            made += pieces[static_cast<std::size_t>(number(static_cast<int>(pieces.size())))];
        return made;
    }

    int number(int below) { return std::uniform_int_distribution<int>(0, below - 1)(m_random); }

private:
    std::mt19937 m_random{20010101};
};

inline bool writeFile(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

inline QByteArray fileBytes(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace tessera::test
