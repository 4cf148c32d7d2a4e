#include "tools/foldersets.h"

#include "core/encodings.h"
#include "tools/openfolder.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <array>
#include <cerrno>

#include <fcntl.h>

namespace tessera {

namespace {

constexpr std::string_view archiveEnding = ".zip";

bool isLetter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

std::string inOtherCase(std::string name)
{
    for (char& c : name)
        c = isLetter(c) ? static_cast<char>(c ^ 0x20) : c;
    return name;
}

// Tried with a name that is there: in the other case it would be the same file.
bool ignoresCase(int folder, const std::string& name)
{
    struct stat one{};
    struct stat other{};
    return ::fstatat(folder, name.c_str(), &one, 0) == 0
        && ::fstatat(folder, inOtherCase(name).c_str(), &other, 0) == 0
        && FileIdentity::of(one) == FileIdentity::of(other);
}

// A link that leads nowhere does not exist.
bool exists(int folder, const dirent64& entry)
{
    struct stat facts{};
    return (entry.d_type != DT_LNK && entry.d_type != DT_UNKNOWN)
        || ::fstatat(folder, entry.d_name, &facts, 0) == 0;
}

// As the kernel gives them, many at once: of tens of thousands each step counts.
template <class Take>
void forEachEntry(int folder, Take take)
{
    alignas(dirent64) std::array<char, 256 * 1024> piece;
    for (ssize_t size = 1; size > 0;) {
        size = ::getdents64(folder, piece.data(), piece.size());
        for (ssize_t at = 0; at < size;) {
            const auto* entry = reinterpret_cast<const dirent64*>(piece.data() + at);
            take(*entry);
            at += entry->d_reclen;
        }
    }
}

// A path leads elsewhere, the folder's names are kept without their ending, and letters outside ASCII may be
// written in several ways.
bool isPlain(std::string_view setName)
{
    return !setName.empty() && setName.front() != '.' && !setName.ends_with(archiveEnding)
        && std::ranges::all_of(setName, [](char c) { return c > 0 && c != '/'; });
}

} // namespace

FolderSets::FolderSets(QString folder)
    : m_folder(std::move(folder))
{
}

FolderSets FolderSets::read(const QString& folder)
{
    FolderSets sets(folder);
    const FileHandle opened(
        ::open(QFile::encodeName(folder + u'/').constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!opened) {
        sets.m_canTell = errno == ENOENT || errno == ENOTDIR;
        return sets;
    }
    const int handle = opened.number();
    // Who may look around but not enter sees names that do not exist for him.
    if (::faccessat(handle, ".", X_OK, AT_EACCESS) != 0)
        return sets;
    std::string withLetters;
    forEachEntry(handle, [&](const dirent64& entry) {
        if (!exists(handle, entry))
            return;
        std::string_view name = entry.d_name;
        if (withLetters.empty() && std::ranges::any_of(name, isLetter))
            withLetters = name;
        if (name.ends_with(archiveEnding))
            name.remove_suffix(archiveEnding.size());
        sets.m_names.add(name);
    });
    // Two files whose names differ in case alone are two files; links may still make one of them.
    sets.m_canTell = withLetters.empty() || !ignoresCase(handle, withLetters);
    sets.m_names.arrange();
    return sets;
}

bool FolderSets::holds(std::string_view setName) const
{
    if (!m_canTell || !isPlain(setName))
        return ask(setName);
    return m_names.contains(setName);
}

PackedName FolderSets::keyOf(std::string_view setName)
{
    return isPlain(setName) && PackedName::fits(setName) ? PackedName::of(setName) : PackedName();
}

bool FolderSets::holds(std::string_view setName, const PackedName& key) const
{
    return key.isNone() || !m_canTell ? holds(setName) : m_names.contains(key);
}

bool FolderSets::ask(std::string_view setName) const
{
    if (setName.contains('\0'))
        return false;
    const QString path
        = m_folder + u'/' + QString::fromUtf8(setName.data(), static_cast<qsizetype>(setName.size()));
    return QFileInfo::exists(path + QLatin1StringView(QByteArrayView(archiveEnding)))
        || QFileInfo::exists(path);
}

} // namespace tessera
