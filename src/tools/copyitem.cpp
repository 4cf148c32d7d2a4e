#include "tools/copyitem.h"

#include "core/openfolder.h"

#include <QFile>

#include <cerrno>
#include <filesystem>
#include <optional>
#include <system_error>
#include <vector>

#include <fcntl.h>

namespace tessera {

namespace {

using Done = std::expected<void, Failure>;

constexpr std::size_t pieceSize = std::size_t{1} << 20;
constexpr mode_t keptPermissions = 0777;

QString shown(const std::string& path)
{
    return QFile::decodeName(QByteArray::fromStdString(path));
}

std::unexpected<Failure> failed(const char* key, const std::string& path, int error)
{
    return std::unexpected(
        Failure{key, {shown(path), QString::fromStdString(std::generic_category().message(error))}});
}

std::unexpected<Failure> notRead(const std::string& path)
{
    return failed("convert_not_read", path, errno);
}

std::unexpected<Failure> notWritten(const std::string& path)
{
    return failed("failure_write", path, errno);
}

std::string pathIn(const std::string& folder, const std::string& name)
{
    std::string path = folder;
    path += '/';
    path += name;
    return path;
}

// A file or folder that is copied, and where to; both are named by an open folder and a name in it.
struct Pair {
    int from;
    int to;
    std::string name;
    std::string fromPath; ///< for what is said of it
    std::string toPath;
};

// One copy on its way, in a place where nobody sees it yet.
class ItemCopy
{
public:
    ItemCopy(const Watch& watch, FileIdentity leftOut, std::vector<char>& piece)
        : m_watch(watch)
        , m_leftOut(leftOut)
        , m_piece(piece)
    {
    }

    Done copy(const Pair& item, const std::string& place);
    // Last of all, from the innermost folder out: one that may not be written could not be filled or moved.
    void finishFolders(const std::string& at) const;

private:
    Done copyFile(const Pair& item, const struct stat& facts);
    Done copyBytes(const Pair& item, int from, int to);
    Done copyFolder(const Pair& item, const struct stat& facts, const std::string& place);
    static Done copyLink(const Pair& item, const struct stat& facts);
    bool goOn(std::int64_t bytes);

    struct Folder {
        std::string place; ///< beneath the item, with its name
        struct stat facts;
    };

    const Watch& m_watch;
    FileIdentity m_leftOut;
    std::vector<char>& m_piece;
    std::vector<Folder> m_folders;
};

Done ItemCopy::copy(const Pair& item, const std::string& place)
{
    struct stat facts{};
    if (m_watch.stop.stop_requested())
        return std::unexpected(Failure{copyCancelled, {}});
    if (::fstatat(item.from, item.name.c_str(), &facts, AT_SYMLINK_NOFOLLOW) != 0)
        return notRead(item.fromPath);
    switch (facts.st_mode & S_IFMT) {
    case S_IFREG:
        return copyFile(item, facts);
    case S_IFDIR:
        return FileIdentity::of(facts) == m_leftOut ? Done() : copyFolder(item, facts, place);
    case S_IFLNK:
        return copyLink(item, facts);
    default:
        return std::unexpected(Failure{"copy_special", {shown(item.fromPath)}});
    }
}

bool ItemCopy::goOn(std::int64_t bytes)
{
    if (m_watch.progress)
        m_watch.progress(bytes);
    return !m_watch.stop.stop_requested();
}

Done ItemCopy::copyFile(const Pair& item, const struct stat& facts)
{
    const FileHandle from(
        ::openat(item.from, item.name.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    if (!from)
        return notRead(item.fromPath);
    FileHandle to(::openat(item.to, item.name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
    if (!to)
        return notWritten(item.toPath);
    // A disk without room says so before, not after, most of the file was written.
    if (facts.st_size > 0 && ::fallocate(to.number(), FALLOC_FL_KEEP_SIZE, 0, facts.st_size) != 0
        && (errno == ENOSPC || errno == EFBIG || errno == EDQUOT))
        return notWritten(item.toPath);
    if (const auto copied = copyBytes(item, from.number(), to.number()); !copied)
        return copied;
    const timespec times[2] = {facts.st_atim, facts.st_mtim};
    ::fchmod(to.number(), facts.st_mode & keptPermissions);
    ::futimens(to.number(), times);
    if (!to.close())
        return notWritten(item.toPath);
    return {};
}

Done ItemCopy::copyBytes(const Pair& item, int from, int to)
{
    // Some file systems share the bytes instead of copying them. What fails here is tried by hand, which
    // tells who is to blame.
    for (ssize_t count = 1; count > 0;) {
        count = ::copy_file_range(from, nullptr, to, nullptr, 8 * pieceSize, 0);
        if (count > 0 && !goOn(count))
            return std::unexpected(Failure{copyCancelled, {}});
    }
    for (;;) {
        const ssize_t count = ::read(from, m_piece.data(), m_piece.size());
        if (count < 0)
            return notRead(item.fromPath);
        if (count == 0)
            return {};
        for (ssize_t written = 0; written < count;) {
            const ssize_t more
                = ::write(to, m_piece.data() + written, static_cast<std::size_t>(count - written));
            if (more < 0)
                return notWritten(item.toPath);
            written += more;
        }
        if (!goOn(count))
            return std::unexpected(Failure{copyCancelled, {}});
    }
}

Done ItemCopy::copyFolder(const Pair& item, const struct stat& facts, const std::string& place)
{
    const int flags = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;
    const FileHandle handle(::openat(item.from, item.name.c_str(), flags));
    if (!handle)
        return notRead(item.fromPath);
    const int listed = ::dup(handle.number());
    const FolderEntries entries(listed < 0 ? nullptr : ::fdopendir(listed));
    if (!entries)
        return notRead(item.fromPath);
    if (::mkdirat(item.to, item.name.c_str(), 0700) != 0)
        return notWritten(item.toPath);
    const FileHandle to(::openat(item.to, item.name.c_str(), flags));
    if (!to)
        return notWritten(item.toPath);
    m_folders.push_back({place, facts});
    errno = 0;
    while (const dirent* entry = ::readdir(entries.get())) {
        const std::string name = entry->d_name;
        if (name == "." || name == "..")
            continue;
        const Pair inner{handle.number(), to.number(), name, pathIn(item.fromPath, name),
                         pathIn(item.toPath, name)};
        if (const auto copied = copy(inner, pathIn(place, name)); !copied)
            return copied;
        errno = 0;
    }
    if (errno != 0)
        return notRead(item.fromPath);
    return {};
}

Done ItemCopy::copyLink(const Pair& item, const struct stat& facts)
{
    std::string target(static_cast<std::size_t>(facts.st_size) + 256, '\0');
    const ssize_t length = ::readlinkat(item.from, item.name.c_str(), target.data(), target.size());
    if (length < 0)
        return notRead(item.fromPath);
    target.resize(static_cast<std::size_t>(length));
    if (::symlinkat(target.c_str(), item.to, item.name.c_str()) != 0)
        return notWritten(item.toPath);
    const timespec times[2] = {facts.st_atim, facts.st_mtim};
    ::utimensat(item.to, item.name.c_str(), times, AT_SYMLINK_NOFOLLOW);
    return {};
}

void ItemCopy::finishFolders(const std::string& at) const
{
    for (auto folder = m_folders.rbegin(); folder != m_folders.rend(); ++folder) {
        const std::string path = pathIn(at, folder->place);
        const timespec times[2] = {folder->facts.st_atim, folder->facts.st_mtim};
        ::utimensat(AT_FDCWD, path.c_str(), times, 0);
        ::chmod(path.c_str(), folder->facts.st_mode & keptPermissions);
    }
}

// A folder of our own where copies grow, beside what they will stand among; it goes away at the end. One for
// each copy would cost more than most copies do: file systems are slow to give a number out again.
class Staging
{
public:
    explicit Staging(const std::string& in)
        : m_path(in + "/.tessera-XXXXXX")
        , m_isThere(::mkdtemp(m_path.data()) != nullptr)
    {
    }
    ~Staging()
    {
        std::error_code ignored;
        if (m_isThere)
            std::filesystem::remove_all(m_path, ignored);
    }
    Staging(const Staging&) = delete;
    Staging& operator=(const Staging&) = delete;

    explicit operator bool() const { return m_isThere; }
    const std::string& path() const { return m_path; }
    /// Halves go away at once.
    void clear(const std::string& name) const
    {
        std::error_code ignored;
        std::filesystem::remove_all(pathIn(m_path, name), ignored);
    }

private:
    std::string m_path;
    bool m_isThere;
};

bool isThere(const std::string& path)
{
    struct stat facts{};
    return ::lstat(path.c_str(), &facts) == 0;
}

// Somebody may have taken the name meanwhile.
bool giveName(const std::string& finished, const std::string& name)
{
    if (::renameat2(AT_FDCWD, finished.c_str(), AT_FDCWD, name.c_str(), RENAME_NOREPLACE) == 0)
        return true;
    if (errno != EINVAL && errno != ENOSYS)
        return false;
    if (isThere(name)) {
        errno = EEXIST;
        return false;
    }
    return ::rename(finished.c_str(), name.c_str()) == 0;
}

FileIdentity identityOf(const std::string& path)
{
    struct stat facts{};
    return ::stat(path.c_str(), &facts) == 0 ? FileIdentity::of(facts) : FileIdentity();
}

std::int64_t sizeAt(int folder, const char* name, FileIdentity leftOut)
{
    struct stat facts{};
    if (::fstatat(folder, name, &facts, AT_SYMLINK_NOFOLLOW) != 0)
        return 0;
    if (S_ISREG(facts.st_mode))
        return facts.st_size;
    if (!S_ISDIR(facts.st_mode) || FileIdentity::of(facts) == leftOut)
        return 0;
    const int handle = ::openat(folder, name, O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    const FolderEntries entries(handle < 0 ? nullptr : ::fdopendir(handle));
    std::int64_t size = 0;
    while (const dirent* entry = entries ? ::readdir(entries.get()) : nullptr) {
        const std::string_view inner = entry->d_name;
        if (inner != "." && inner != "..")
            size += sizeAt(handle, entry->d_name, leftOut);
    }
    return size;
}

} // namespace

struct ItemCopier::Parts {
    std::string from;
    std::string into;
    Watch watch;
    std::vector<char> piece = std::vector<char>(pieceSize);
    std::optional<Staging> staging;

    // Anew where somebody took it away; nothing where it cannot be made.
    Staging* usableStaging()
    {
        if (!staging || !*staging || !isThere(staging->path())) {
            staging.reset();
            staging.emplace(into);
        }
        return *staging ? &*staging : nullptr;
    }

    Done copy(const std::string& name);
    Done copyThrough(const Staging& hidden, const Pair& item, FileIdentity leftOut);
};

Done ItemCopier::Parts::copy(const std::string& name)
{
    const std::string source = pathIn(from, name);
    const std::string destination = pathIn(into, name);
    const FileIdentity leftOut = identityOf(into);
    struct stat facts{};
    if (::lstat(source.c_str(), &facts) == 0 && FileIdentity::of(facts) == leftOut)
        return std::unexpected(Failure{"copy_into_itself", {shown(source)}});
    if (isThere(destination))
        return std::unexpected(Failure{"copy_exists", {shown(destination)}});
    Staging* const hidden = usableStaging();
    if (hidden == nullptr)
        return notWritten(destination);
    const int flags = O_RDONLY | O_DIRECTORY | O_CLOEXEC;
    const FileHandle fromFolder(::open(from.c_str(), flags));
    if (!fromFolder)
        return notRead(source);
    const FileHandle toFolder(::open(hidden->path().c_str(), flags));
    if (!toFolder)
        return notWritten(destination);
    const auto copied
        = copyThrough(*hidden, {fromFolder.number(), toFolder.number(), name, source, destination}, leftOut);
    if (!copied)
        hidden->clear(name);
    return copied;
}

Done ItemCopier::Parts::copyThrough(const Staging& hidden, const Pair& item, FileIdentity leftOut)
{
    ItemCopy copying(watch, leftOut, piece);
    if (const auto copied = copying.copy(item, item.name); !copied)
        return copied;
    if (!giveName(pathIn(hidden.path(), item.name), item.toPath)) {
        return errno == EEXIST ? std::unexpected(Failure{"copy_exists", {shown(item.toPath)}})
                               : notWritten(item.toPath);
    }
    copying.finishFolders(into);
    return {};
}

ItemCopier::ItemCopier(const std::string& from, const std::string& into, const Watch& watch)
    : m_parts(std::make_unique<Parts>(from, into, watch))
{
}

ItemCopier::~ItemCopier() = default;

std::expected<void, Failure> ItemCopier::copy(const std::string& name)
{
    return m_parts->copy(name);
}

std::int64_t itemSize(const std::string& from, const std::string& name, const std::string& into)
{
    return sizeAt(AT_FDCWD, pathIn(from, name).c_str(), identityOf(into));
}

} // namespace tessera
