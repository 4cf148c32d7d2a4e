#pragma once

#include "core/failure.h"
#include "info/historysearch.h"
#include "info/historyxml.h"

#include <variant>

namespace tessera {

/// One of the two files that tell about games, decoded and in memory; in its classic form, which is searched
/// in place, or in the XML form of today.
class InfoFile
{
public:
    /// A text as it is decoded already.
    explicit InfoFile(std::string text);
    explicit InfoFile(HistoryXml entries);

    static std::expected<InfoFile, Failure> parse(std::string bytes, const QString& path);
    /// Blocks while the file is read and decoded.
    static std::expected<InfoFile, Failure> read(const QString& path);

    /// By the exact forms, or by any name in the XML form.
    std::optional<std::string_view> entry(std::string_view name, EntryKind kind) const;
    /// What only a search by any name and any line end finds.
    std::optional<FiledEntry> filed(std::string_view name, EntryKind kind) const;

    /// The text of the classic form.
    std::string_view text() const;

private:
    std::variant<std::string, HistoryXml> m_content;
};

} // namespace tessera
