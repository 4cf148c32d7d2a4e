#include "catalogue/recorddictionary.h"

namespace tessera {

namespace {

constexpr std::array objectFields{Field::Name,    Field::Cloneof, Field::Title,
                                  Field::Titlejp, Field::Year,    Field::Maker};

QString text(std::string_view bytes)
{
    return QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size()));
}

} // namespace

RecordDictionary recordDictionary(const GameRecord& record)
{
    RecordDictionary dictionary;
    for (std::size_t i = 0; i < fieldCount; ++i) {
        const auto field = static_cast<Field>(i);
        if (record.has(field))
            dictionary.insert(text(fieldName(field)), text(record[field]));
    }
    return dictionary;
}

RecordDictionary objectDictionary(const GameRecord& record)
{
    RecordDictionary dictionary;
    for (const Field field : objectFields)
        dictionary.insert(text(fieldName(field)), shownValue(record, field));
    return dictionary;
}

QString shownValue(const GameRecord& record, Field field)
{
    return record.has(field) ? text(record[field]) : QStringLiteral("(null)");
}

} // namespace tessera
