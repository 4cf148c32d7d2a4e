#include "tools/copyitem.h"

#include "core/openfolder.h"

#include <QFile>

#include <cerrno>
#include <filesystem>
#include <optional>
#include <system_error>
#include <vector>

#include <fcntl.h>

// Neither the standard library's copy nor Qt's can be stopped in the middle of a large file, keeps times, or
// makes room before it writes. So files are copied by the system's own calls, and only folders and links are
// left to the library.

namespace tessera {

namespace {

namespace fs = std::filesystem;
using Done = std::expected<void, Failure>;

constexpr std::size_t pieceSize = std::size_t{1} << 20;
constexpr mode_t keptPermissions = 0777;

QString shown(const fs::path& path)
{
    return QFile::decodeName(QByteArray::fromStdString(path.native()));
}

std::unexpected<Failure> failed(const char* key, const fs::path& path, std::error_code error)
{
    return std::unexpected(Failure{key, {shown(path), QString::fromStdString(error.message())}});
}

std::error_code lastError()
{
    return {errno, std::generic_category()};
}

bool isThere(const fs::path& path)
{
    struct stat facts{};
    return ::lstat(path.c_str(), &facts) == 0;
}

void takeTimes(const fs::path& path, const struct stat& facts)
{
    const timespec times[2] = {facts.st_atim, facts.st_mtim};
    ::utimensat(AT_FDCWD, path.c_str(), times, AT_SYMLINK_NOFOLLOW);
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
            fs::remove_all(m_path, ignored);
    }
    Staging(const Staging&) = delete;
    Staging& operator=(const Staging&) = delete;

    bool isThere() const { return m_isThere; }
    fs::path path() const { return m_path; }

private:
    std::string m_path;
    bool m_isThere;
};

// Somebody may have taken the name meanwhile.
bool giveName(const fs::path& finished, const fs::path& name)
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

// A place is a path beneath the three folders: where it is copied from, where the copy grows unseen, and
// where it will stand.
struct ItemCopier::Parts {
    struct Folder {
        fs::path place;
        struct stat facts;
    };

    std::string from;
    std::string into;
    CopyWatch watch;
    std::vector<char> piece = std::vector<char>(pieceSize);
    std::optional<Staging> staging;
    fs::path hidden;
    FileIdentity leftOut;
    std::vector<Folder> folders; ///< that were copied, the outer ones first

    Done copy(const fs::path& name);
    Done copyPlace(const fs::path& place);
    Done copyFile(const fs::path& place, const struct stat& facts);
    Done copyBytes(const fs::path& place, int source, int target);
    Done copyFolder(const fs::path& place, const struct stat& facts);
    Done copyLink(const fs::path& place, const struct stat& facts) const;
    void finishFolders() const;
    bool findStaging();
    bool goOn(std::int64_t bytes) const;

    std::unexpected<Failure> notRead(const fs::path& place, std::error_code error = lastError()) const
    {
        return failed("convert_not_read", from / place, error);
    }
    std::unexpected<Failure> notWritten(const fs::path& place, std::error_code error = lastError()) const
    {
        return failed("failure_write", into / place, error);
    }
    std::unexpected<Failure> exists(const fs::path& place) const
    {
        return std::unexpected(Failure{"copy_exists", {shown(into / place)}});
    }
};

// Anew where somebody took it away.
bool ItemCopier::Parts::findStaging()
{
    if (!staging || !staging->isThere() || !isThere(hidden)) {
        staging.emplace(into);
        hidden = staging->path();
    }
    return staging->isThere();
}

Done ItemCopier::Parts::copy(const fs::path& name)
{
    leftOut = identityOf(into);
    folders.clear();
    struct stat facts{};
    if (::lstat((from / name).c_str(), &facts) == 0 && FileIdentity::of(facts) == leftOut)
        return std::unexpected(Failure{"copy_into_itself", {shown(from / name)}});
    if (isThere(into / name))
        return exists(name);
    if (!findStaging())
        return notWritten(name);
    Done copied = copyPlace(name);
    if (copied && !giveName(hidden / name, into / name))
        copied = errno == EEXIST ? exists(name) : notWritten(name);
    std::error_code ignored;
    if (copied)
        finishFolders();
    else
        fs::remove_all(hidden / name, ignored); // halves go away at once
    return copied;
}

Done ItemCopier::Parts::copyPlace(const fs::path& place)
{
    struct stat facts{};
    if (watch.stop.stop_requested())
        return std::unexpected(Failure{copyCancelled, {}});
    if (::lstat((from / place).c_str(), &facts) != 0)
        return notRead(place);
    switch (facts.st_mode & S_IFMT) {
    case S_IFREG:
        return copyFile(place, facts);
    case S_IFDIR:
        return FileIdentity::of(facts) == leftOut ? Done() : copyFolder(place, facts);
    case S_IFLNK:
        return copyLink(place, facts);
    default:
        return std::unexpected(Failure{"copy_special", {shown(from / place)}});
    }
}

bool ItemCopier::Parts::goOn(std::int64_t bytes) const
{
    if (watch.copied)
        watch.copied(bytes);
    return !watch.stop.stop_requested();
}

Done ItemCopier::Parts::copyFile(const fs::path& place, const struct stat& facts)
{
    const FileHandle source(::open((from / place).c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    if (!source)
        return notRead(place);
    FileHandle target(::open((hidden / place).c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
    if (!target)
        return notWritten(place);
    // A disk without room says so before, not after, most of the file was written.
    if (facts.st_size > 0 && ::fallocate(target.number(), FALLOC_FL_KEEP_SIZE, 0, facts.st_size) != 0
        && (errno == ENOSPC || errno == EFBIG || errno == EDQUOT))
        return notWritten(place);
    if (const auto copied = copyBytes(place, source.number(), target.number()); !copied)
        return copied;
    ::fchmod(target.number(), facts.st_mode & keptPermissions);
    if (!target.close())
        return notWritten(place);
    takeTimes(hidden / place, facts);
    return {};
}

Done ItemCopier::Parts::copyBytes(const fs::path& place, int source, int target)
{
    // Some file systems share the bytes instead of copying them. What fails here is tried by hand, which
    // tells who is to blame.
    for (ssize_t count = 1; count > 0;) {
        count = ::copy_file_range(source, nullptr, target, nullptr, 8 * pieceSize, 0);
        if (count > 0 && !goOn(count))
            return std::unexpected(Failure{copyCancelled, {}});
    }
    for (;;) {
        const ssize_t count = ::read(source, piece.data(), piece.size());
        if (count < 0)
            return notRead(place);
        if (count == 0)
            return {};
        for (ssize_t written = 0; written < count;) {
            const ssize_t more
                = ::write(target, piece.data() + written, static_cast<std::size_t>(count - written));
            if (more < 0)
                return notWritten(place);
            written += more;
        }
        if (!goOn(count))
            return std::unexpected(Failure{copyCancelled, {}});
    }
}

Done ItemCopier::Parts::copyFolder(const fs::path& place, const struct stat& facts)
{
    std::error_code error;
    fs::directory_iterator entry(from / place, error);
    if (error)
        return notRead(place, error);
    if (::mkdir((hidden / place).c_str(), 0700) != 0)
        return notWritten(place);
    folders.push_back({place, facts});
    for (; entry != fs::directory_iterator(); entry.increment(error)) {
        if (const auto copied = copyPlace(place / entry->path().filename()); !copied)
            return copied;
    }
    return error ? Done(notRead(place, error)) : Done();
}

Done ItemCopier::Parts::copyLink(const fs::path& place, const struct stat& facts) const
{
    std::error_code error;
    const fs::path target = fs::read_symlink(from / place, error);
    if (error)
        return notRead(place, error);
    if (fs::create_symlink(target, hidden / place, error); error)
        return notWritten(place, error);
    takeTimes(hidden / place, facts);
    return {};
}

// Last of all, from the innermost folder out: one that may not be written could not be filled or moved.
void ItemCopier::Parts::finishFolders() const
{
    for (auto folder = folders.rbegin(); folder != folders.rend(); ++folder) {
        takeTimes(into / folder->place, folder->facts);
        ::chmod((into / folder->place).c_str(), folder->facts.st_mode & keptPermissions);
    }
}

ItemCopier::ItemCopier(const std::string& from, const std::string& into, const CopyWatch& watch)
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
    return sizeAt(AT_FDCWD, (from / fs::path(name)).c_str(), identityOf(into));
}

} // namespace tessera
