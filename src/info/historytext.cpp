#include "info/historytext.h"

namespace tessera {

namespace {

struct Section {
    EntryKind kind;
    std::string_view heading;
    std::string_view none;
};

constexpr Section historySection{EntryKind::Bio, historytexts::historyHeading, historytexts::noHistory};
constexpr Section infoSection{EntryKind::Mame, historytexts::infoHeading, historytexts::noInfo};

void appendEntry(std::string& text, const Section& section, std::string_view entry)
{
    text += section.heading;
    text += makeParsedString(entry);
    text += historytexts::sectionEnd;
}

void appendSection(HistoryText& shown, const Section& section, const InfoFile* file, std::string_view name,
                   FiledEntries wanted)
{
    // Deliberate: in an absent file every name has an empty entry.
    if (file == nullptr)
        return appendEntry(shown.text, section, {});
    if (const auto entry = file->entry(name, section.kind))
        return appendEntry(shown.text, section, *entry);
    const auto filed = file->filed(name, section.kind);
    if (filed && wanted == FiledEntries::Show)
        return appendEntry(shown.text, section, filed->text);
    if (filed && !shown.filedUnder)
        shown.filedUnder = filed->name;
    shown.text += section.none;
}

} // namespace

HistoryText historyText(const InfoFiles& files, std::string_view name, FiledEntries filed)
{
    HistoryText shown;
    appendSection(shown, historySection, files.history, name, filed);
    appendSection(shown, infoSection, files.info, name, filed);
    return shown;
}

} // namespace tessera
