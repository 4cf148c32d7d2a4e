#include "tools/foldersets.h"

#include "core/encodings.h"
#include "tools/openfolder.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <array>
#include <bit>
#include <cerrno>
#include <utility>

#include <fcntl.h>

namespace tessera {

namespace {

constexpr std::string_view archiveEnding = ".zip";
constexpr std::size_t fewest = 64;
constexpr std::size_t fetchedAtOnce = 16;

std::size_t hashOf(std::string_view setName)
{
    return std::hash<std::string_view>()(setName);
}

std::uint32_t otherHalf(std::size_t hash)
{
    return static_cast<std::uint32_t>(hash >> 32);
}

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
bool exists(int folder, const dirent& entry)
{
    struct stat facts{};
    return (entry.d_type != DT_LNK && entry.d_type != DT_UNKNOWN)
        || ::fstatat(folder, entry.d_name, &facts, 0) == 0;
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
    const FolderEntries entries(::opendir(QFile::encodeName(folder + u'/').constData()));
    if (!entries) {
        sets.m_canTell = errno == ENOENT || errno == ENOTDIR;
        sets.makeRoom();
        return sets;
    }
    const int handle = ::dirfd(entries.get());
    // Who may look around but not enter sees names that do not exist for him.
    if (::faccessat(handle, ".", X_OK, AT_EACCESS) != 0) {
        sets.makeRoom();
        return sets;
    }
    std::string withLetters;
    while (const dirent* entry = ::readdir(entries.get())) {
        if (!exists(handle, *entry))
            continue;
        std::string_view name = entry->d_name;
        if (withLetters.empty() && std::ranges::any_of(name, isLetter))
            withLetters = name;
        if (name.ends_with(archiveEnding))
            name.remove_suffix(archiveEnding.size());
        sets.add(name);
    }
    // Two files whose names differ in case alone are two files; links may still make one of them.
    sets.m_canTell = withLetters.empty() || !ignoresCase(handle, withLetters);
    sets.makeRoom();
    return sets;
}

bool FolderSets::holds(std::string_view setName) const
{
    return holds(setName, hashOf(setName));
}

bool FolderSets::holds(std::string_view setName, std::size_t hash) const
{
    if (!m_canTell || !isPlain(setName))
        return ask(setName);
    return m_slots[slotOf(setName, hash)].start != 0;
}

// Slots and names lie all over the memory: while one is looked at, others are fetched.
std::vector<std::uint8_t> FolderSets::holdEach(std::span<const std::string_view> setNames) const
{
    std::vector<std::uint8_t> found(setNames.size());
    std::array<std::size_t, fetchedAtOnce> hashes{};
    std::array<std::size_t, fetchedAtOnce> places{};
    for (std::size_t from = 0; from < setNames.size(); from += fetchedAtOnce) {
        const auto some = setNames.subspan(from, std::min(fetchedAtOnce, setNames.size() - from));
        for (std::size_t i = 0; i < some.size(); ++i) {
            hashes[i] = hashOf(some[i]);
            __builtin_prefetch(&m_slots[hashes[i] & (m_slots.size() - 1)]);
        }
        for (std::size_t i = 0; i < some.size(); ++i) {
            places[i] = likelySlot(hashes[i]);
            __builtin_prefetch(m_text.data() + m_slots[places[i]].start);
        }
        for (std::size_t i = 0; i < some.size(); ++i) {
            const Slot slot = m_slots[places[i]];
            if (!m_canTell || !isPlain(some[i]))
                found[from + i] = ask(some[i]) ? 1 : 0;
            else if (slot.start != 0)
                found[from + i] = nameAt(slot.start) == some[i] || holds(some[i], hashes[i]) ? 1 : 0;
        }
    }
    return found;
}

bool FolderSets::ask(std::string_view setName) const
{
    if (setName.contains('\0'))
        return false;
    const QString path
        = m_folder + u'/' + QString::fromUtf8(setName.data(), static_cast<qsizetype>(setName.size()));
    return QFileInfo::exists(path + QLatin1String(archiveEnding.data())) || QFileInfo::exists(path);
}

// No file system of ours has names of more than 255 bytes.
void FolderSets::add(std::string_view setName)
{
    m_text += static_cast<char>(setName.size());
    m_text += setName;
    m_hashes.push_back(hashOf(setName));
}

// A third of the slots or more stays free, so that a search ends soon; few fit into the cache.
void FolderSets::makeRoom()
{
    const std::vector<std::size_t> hashes = std::exchange(m_hashes, {});
    m_slots.assign(std::max(fewest, std::bit_ceil(hashes.size() + hashes.size() / 2)), Slot{});
    std::size_t start = 1;
    for (std::size_t i = 0; i < hashes.size(); ++i) {
        const std::size_t ahead = hashes[std::min(i + fetchedAtOnce, hashes.size() - 1)];
        __builtin_prefetch(m_slots.data() + (ahead & (m_slots.size() - 1)), 1);
        const std::string_view name = nameAt(start);
        m_slots[slotOf(name, hashes[i])] = {otherHalf(hashes[i]), static_cast<std::uint32_t>(start)};
        start += 1 + name.size();
    }
}

// By the hash alone: another name may have the same.
std::size_t FolderSets::likelySlot(std::size_t hash) const
{
    const std::size_t mask = m_slots.size() - 1;
    std::size_t slot = hash & mask;
    while (m_slots[slot].start != 0 && m_slots[slot].hash != otherHalf(hash))
        slot = (slot + 1) & mask;
    return slot;
}

// Where a name is, or would be.
std::size_t FolderSets::slotOf(std::string_view setName, std::size_t hash) const
{
    const std::size_t mask = m_slots.size() - 1;
    std::size_t slot = hash & mask;
    while (m_slots[slot].start != 0
           && (m_slots[slot].hash != otherHalf(hash) || nameAt(m_slots[slot].start) != setName))
        slot = (slot + 1) & mask;
    return slot;
}

std::string_view FolderSets::nameAt(std::size_t start) const
{
    return std::string_view(m_text).substr(start + 1, static_cast<unsigned char>(m_text[start]));
}

} // namespace tessera
