#include "catalogue/storewriter.h"

#include "catalogue/storelayout.h"
#include "catalogue/xmltext.h"

namespace tessera {

namespace {

using namespace storelayout;

// What an object of today's MAME takes, and somewhat more.
constexpr std::size_t usualObject = 640;

void appendObject(std::string& text, const GameRecord& record, std::size_t id)
{
    text += objectStart;
    text += std::to_string(id);
    text += objectStartEnd;
    for (std::size_t field = 0; field < fieldCount; ++field) {
        const std::string_view value = record.values[field];
        if (value.data() == nullptr)
            continue;
        text += attributeStarts[field];
        appendEscaped(text, value);
        text += attributeEnd;
    }
    text += objectEnd;
}

} // namespace

std::string storeText(std::span<const GameRecord> records)
{
    std::string text;
    text.reserve(1024 + records.size() * usualObject);
    text += headerStart;
    text += newUuid();
    text += headerMiddle;
    text += std::to_string(lastObjectId(records.size()));
    text += headerEnd;
    std::size_t id = firstObjectId;
    for (const GameRecord& record : records)
        appendObject(text, record, id++);
    text += storeEnd;
    return text;
}

bool isStoreText(std::string_view text, std::span<const GameRecord> records)
{
    const std::string ours = storeText(records);
    const std::string_view ourText = ours;
    const std::size_t behindUuid = ours.find('<', headerStart.size());
    return text.size() == ours.size() && text.starts_with(headerStart)
        && text.substr(behindUuid) == ourText.substr(behindUuid);
}

} // namespace tessera
