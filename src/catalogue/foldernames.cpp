#include "catalogue/foldernames.h"

#include "catalogue/recorddictionary.h"
#include "core/encodings.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cerrno>
#include <memory>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tessera {

namespace {

using Directory = std::unique_ptr<DIR, decltype([](DIR* directory) { ::closedir(directory); })>;

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

bool isAsciiLetter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

std::string inOtherCase(std::string name)
{
    for (char& c : name)
        c = isAsciiLetter(c) ? static_cast<char>(c ^ 0x20) : c;
    return name;
}

std::string inLowerCase(std::string_view name)
{
    std::string lower(name);
    for (char& c : lower)
        c = isAsciiLetter(c) ? static_cast<char>(c | 0x20) : c;
    return lower;
}

// Tried with a name that is there: in the other case it must be the same file.
FolderNames::Case caseOf(int folder, const FolderNames::Entries& entries)
{
    for (const auto& [name, kind] : entries) {
        const std::string other = inOtherCase(name);
        if (other == name || entries.contains(other))
            continue;
        struct stat one{};
        struct stat two{};
        const bool same = ::fstatat(folder, name.c_str(), &one, 0) == 0
            && ::fstatat(folder, other.c_str(), &two, 0) == 0 && one.st_ino == two.st_ino
            && one.st_dev == two.st_dev;
        return same ? FolderNames::Case::Ignored : FolderNames::Case::Matters;
    }
    return FolderNames::Case::Matters;
}

} // namespace

FolderNames FolderNames::read(const QString& folder)
{
    Entries entries;
    const Directory directory(::opendir(QFile::encodeName(folder + u'/').constData()));
    if (!directory) {
        FolderNames none(folder, {}, Case::Matters);
        none.m_listed = errno == ENOENT || errno == ENOTDIR;
        return none;
    }
    const int handle = ::dirfd(directory.get());
    // Who may look around but not enter sees names that do not exist for him.
    if (handle < 0 || ::faccessat(handle, ".", X_OK, AT_EACCESS) != 0)
        return FolderNames(folder, {}, Case::Matters);
    while (const dirent* entry = ::readdir(directory.get())) {
        const std::string_view name = entry->d_name;
        if (name == "." || name == "..")
            continue;
        if (const auto kind = kindOf(handle, *entry))
            entries.emplace(name, *kind);
    }
    const Case letters = caseOf(handle, entries);
    return FolderNames(folder, entries, letters);
}

FolderNames::FolderNames(QString folder, const Entries& entries, Case letters)
    : m_folder(std::move(folder))
    , m_case(letters)
{
    m_entries.reserve(entries.size());
    for (const auto& [name, kind] : entries) {
        m_foreignLetters = m_foreignLetters || !isAscii(name);
        m_entries.emplace(letters == Case::Ignored ? inLowerCase(name) : name, kind);
    }
}

std::optional<FolderNames::Kind> FolderNames::find(std::string_view name) const
{
    if (name.contains('\0'))
        return std::nullopt;
    if (!canTell(name))
        return ask(name);
    const auto found = m_entries.find(m_case == Case::Ignored ? inLowerCase(name) : std::string(name));
    if (found != m_entries.end())
        return found->second;
    // A file system that ignores case may take a foreign letter for one of ours.
    return m_case == Case::Ignored && m_foreignLetters ? ask(name) : std::nullopt;
}

// A path leads elsewhere, file systems compare letters outside ASCII each in its own way, and "~" may be a
// short name's.
bool FolderNames::canTell(std::string_view name) const
{
    const bool plain = isAscii(name) && !name.contains('/');
    return m_listed && plain && !(m_case == Case::Ignored && name.contains('~'));
}

std::optional<FolderNames::Kind> FolderNames::ask(std::string_view name) const
{
    const QFileInfo info(m_folder + u'/' + fieldText(name));
    if (!info.exists())
        return std::nullopt;
    return info.isDir() ? Kind::Folder : Kind::File;
}

} // namespace tessera
