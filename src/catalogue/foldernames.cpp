#include "catalogue/foldernames.h"

#include "catalogue/recorddictionary.h"
#include "core/encodings.h"
#include "core/openfolder.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cerrno>
#include <utility>

#include <fcntl.h>

namespace tessera {

namespace {

// Links are followed; nothing where they lead nowhere.
std::optional<FolderNames::Kind> kindOf(int folder, const dirent& entry)
{
    using Kind = FolderNames::Kind;
    if (entry.d_type != DT_LNK && entry.d_type != DT_UNKNOWN)
        return entry.d_type == DT_DIR ? Kind::Folder : Kind::File;
    struct stat facts{};
    if (::fstatat(folder, entry.d_name, &facts, 0) != 0)
        return std::nullopt;
    return S_ISDIR(facts.st_mode) ? Kind::Folder : Kind::File;
}

// Of letters in ASCII; file systems compare others each in its own way.
std::string inLowerCase(std::string_view name)
{
    return QByteArray(name.data(), static_cast<qsizetype>(name.size())).toLower().toStdString();
}

// By the folder's own size, which most file systems count in bytes of its entries; a wrong one costs nothing.
std::size_t namesAbout(int folder)
{
    constexpr off_t entrySize = 28;
    constexpr off_t most = 100'000;
    struct stat facts{};
    return ::fstat(folder, &facts) == 0 ? static_cast<std::size_t>(std::min(facts.st_size / entrySize, most))
                                        : 0;
}

std::string inOtherCase(const std::string& name)
{
    const std::string lower = inLowerCase(name);
    return lower != name ? lower : QByteArray::fromStdString(name).toUpper().toStdString();
}

// Tried with a name that is there: in the other case it must be the same file.
bool ignoresCase(int folder, const NameSet& names)
{
    for (std::size_t i = 0; i < names.names().size(); ++i) {
        const std::string name(names.names()[i]);
        const std::string other = inOtherCase(name);
        if (names.contains(other))
            continue;
        struct stat one{};
        struct stat two{};
        return ::fstatat(folder, name.c_str(), &one, 0) == 0 && ::fstatat(folder, other.c_str(), &two, 0) == 0
            && FileIdentity::of(one) == FileIdentity::of(two);
    }
    return false;
}

} // namespace

FolderNames FolderNames::read(const QString& folder)
{
    FolderNames names(folder);
    const FolderEntries directory(::opendir(QFile::encodeName(folder + u'/').constData()));
    if (!directory) {
        names.m_listed = errno == ENOENT || errno == ENOTDIR;
        return names;
    }
    const int handle = ::dirfd(directory.get());
    // Who may look around but not enter sees names that do not exist for him.
    if (handle < 0 || ::faccessat(handle, ".", X_OK, AT_EACCESS) != 0)
        return names;
    const std::size_t about = namesAbout(handle);
    names.m_names.reserve(about);
    names.m_kinds.reserve(about);
    while (const dirent* entry = ::readdir(directory.get())) {
        if (const auto kind = kindOf(handle, *entry))
            names.add(entry->d_name, *kind);
    }
    if (ignoresCase(handle, names.m_names))
        names.ignoreCase();
    return names;
}

FolderNames::FolderNames(QString folder)
    : m_folder(std::move(folder))
{
}

FolderNames::FolderNames(QString folder, std::initializer_list<Entry> entries, Case letters)
    : FolderNames(std::move(folder))
{
    for (const Entry& each : entries)
        add(each.name, each.kind);
    if (letters == Case::Ignored)
        ignoreCase();
}

void FolderNames::add(std::string_view name, Kind kind)
{
    if (m_names.insert(name).second)
        m_kinds.push_back(kind);
}

void FolderNames::ignoreCase()
{
    m_case = Case::Ignored;
    const NameSet exact = std::exchange(m_names, {});
    const std::vector<Kind> kinds = std::exchange(m_kinds, {});
    for (std::size_t i = 0; i < kinds.size(); ++i) {
        m_foreignLetters = m_foreignLetters || !isAscii(exact.names()[i]);
        add(inLowerCase(exact.names()[i]), kinds[i]);
    }
}

std::optional<FolderNames::Kind> FolderNames::find(std::string_view name) const
{
    if (const auto found = m_case == Case::Ignored ? m_names.find(inLowerCase(name)) : m_names.find(name))
        return m_kinds[*found];
    return canTell(name) ? std::nullopt : ask(name);
}

// A path leads elsewhere, file systems compare letters outside ASCII each in its own way, and "~" may be a
// short name's.
bool FolderNames::canTell(std::string_view name) const
{
    const bool isPlain = isAscii(name) && !name.contains('/');
    return name.contains('\0')
        || (m_listed && isPlain && !(m_case == Case::Ignored && (m_foreignLetters || name.contains('~'))));
}

std::optional<FolderNames::Kind> FolderNames::ask(std::string_view name) const
{
    const QFileInfo info(m_folder + u'/' + fieldText(name));
    if (!info.exists())
        return std::nullopt;
    return info.isDir() ? Kind::Folder : Kind::File;
}

} // namespace tessera
