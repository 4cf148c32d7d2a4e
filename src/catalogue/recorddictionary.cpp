#include "catalogue/recorddictionary.h"

namespace tessera {

namespace {

constexpr std::array objectFields{Field::Name,    Field::Cloneof, Field::Title,
                                  Field::Titlejp, Field::Year,    Field::Maker};

} // namespace

QString fieldText(std::string_view value)
{
    return QString::fromUtf8(value.data(), static_cast<qsizetype>(value.size()));
}

RecordDictionary recordDictionary(const GameRecord& record)
{
    RecordDictionary dictionary;
    for (std::size_t i = 0; i < fieldCount; ++i) {
        const auto field = static_cast<Field>(i);
        if (record.has(field))
            dictionary.insert(fieldText(fieldName(field)), fieldText(record[field]));
    }
    return dictionary;
}

RecordDictionary objectDictionary(const GameRecord& record)
{
    RecordDictionary dictionary;
    for (const Field field : objectFields)
        dictionary.insert(fieldText(fieldName(field)), shownValue(record, field));
    return dictionary;
}

QString shownValue(const GameRecord& record, Field field)
{
    return record.has(field) ? fieldText(record[field]) : QStringLiteral("(null)");
}

} // namespace tessera
