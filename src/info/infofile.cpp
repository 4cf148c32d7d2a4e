#include "info/infofile.h"

#include "info/textencoding.h"

#include <QFile>
#include <QFileInfo>

namespace tessera {

namespace {

// In bytes; the largest such file is less than a tenth of it.
constexpr qint64 sizeLimit = qint64{1} << 30;

std::expected<std::string, Failure> wholeFile(const QString& path)
{
    QFile file(path);
    // No folder, and no pipe or device, whose content may have no end.
    if (!QFileInfo(path).isFile())
        return std::unexpected(Failure{"info_no_file", {path}});
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return std::unexpected(Failure{"info_not_read", {path, file.errorString()}});
    if (file.size() > sizeLimit)
        return std::unexpected(Failure{"info_too_large", {path}});
    std::string bytes(static_cast<std::size_t>(file.size()), '\0');
    const qint64 count = file.read(bytes.data(), file.size());
    if (count < 0)
        return std::unexpected(Failure{"info_not_read", {path, file.errorString()}});
    bytes.resize(static_cast<std::size_t>(count));
    return bytes;
}

} // namespace

InfoFile::InfoFile(std::string text)
    : m_content(std::move(text))
{
}

InfoFile::InfoFile(HistoryXml entries)
    : m_content(std::move(entries))
{
}

std::expected<InfoFile, Failure> InfoFile::parse(std::string bytes, const QString& path)
{
    DecodedText decoded = decodedText(std::move(bytes));
    if (!decoded.text)
        return std::unexpected(Failure{"info_not_decoded", {path}});
    if (!isHistoryXml(*decoded.text))
        return InfoFile(*std::move(decoded.text));
    auto entries = HistoryXml::parse(*std::move(decoded.text), path);
    if (!entries)
        return std::unexpected(entries.error());
    return InfoFile(*std::move(entries));
}

std::expected<InfoFile, Failure> InfoFile::read(const QString& path)
{
    auto bytes = wholeFile(path);
    if (!bytes)
        return std::unexpected(bytes.error());
    return parse(*std::move(bytes), path);
}

std::optional<std::string_view> InfoFile::entry(std::string_view name, EntryKind kind) const
{
    if (const auto* entries = std::get_if<HistoryXml>(&m_content))
        return entries->entry(name);
    return exactEntry(text(), name, kind);
}

std::optional<FiledEntry> InfoFile::filed(std::string_view name, EntryKind kind) const
{
    return filedEntry(text(), name, kind);
}

std::string_view InfoFile::text() const
{
    const auto* text = std::get_if<std::string>(&m_content);
    return text != nullptr ? std::string_view(*text) : std::string_view();
}

} // namespace tessera
