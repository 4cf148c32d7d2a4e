#include "catalogue/storereader.h"

#include "catalogue/storelayout.h"
#include "catalogue/storeparser.h"
#include "catalogue/storescanner.h"
#include "catalogue/storewriter.h"

#include <QFile>

#include <algorithm>
#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tessera {

namespace {

/// A file opened for reading. System calls, since a buffered device copies every byte once more.
class InputFile
{
public:
    // Not blocking: nobody may ever write into a pipe of that name.
    explicit InputFile(const QString& path)
        : m_descriptor(::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK))
    {
    }
    ~InputFile()
    {
        if (isOpen())
            ::close(m_descriptor);
    }
    InputFile(const InputFile&) = delete;
    InputFile& operator=(const InputFile&) = delete;

    bool isOpen() const { return m_descriptor >= 0; }
    bool describe(struct stat& facts) const { return ::fstat(m_descriptor, &facts) == 0; }
    void rewind() { m_offset = 0; }

    std::ptrdiff_t read(char* buffer, std::size_t size)
    {
        ssize_t count = 0;
        do {
            count = ::pread(m_descriptor, buffer, size, m_offset);
        } while (count < 0 && errno == EINTR);
        if (count > 0)
            m_offset += count;
        return count;
    }

private:
    int m_descriptor;
    off_t m_offset = 0;
};

std::unexpected<Failure> systemFailure(const QString& path)
{
    if (errno == ENOENT)
        return std::unexpected(Failure{"failure_store_missing", {path}});
    return std::unexpected(
        Failure{"failure_store_read", {path, QString::fromLocal8Bit(std::strerror(errno))}});
}

// False, with errno set, when the file could not be read to its end.
bool readWhole(InputFile& file, std::size_t size, std::string& bytes)
{
    std::size_t used = 0;
    for (;;) {
        bytes.resize(used + std::max<std::size_t>(size - std::min(size, used), scanWindow));
        const std::ptrdiff_t count = file.read(bytes.data() + used, bytes.size() - used);
        if (count < 0)
            return false;
        used += static_cast<std::size_t>(count);
        if (count == 0)
            break;
    }
    bytes.resize(used);
    return true;
}

// Ours, too, is read like this where a record has no value for some attribute.
std::expected<StoredCatalogue, Failure> parse(std::string bytes, const QString& path)
{
    const bool mayBeOurs = bytes.starts_with(storelayout::headerStart);
    const std::string text = mayBeOurs ? bytes : std::string();
    auto store = parseStore(std::move(bytes), path);
    if (store)
        store->isOurLayout = mayBeOurs && isStoreText(text, store->records);
    return store;
}

} // namespace

std::expected<StoredCatalogue, Failure> readStore(const QString& path)
{
    InputFile file(path);
    struct stat facts{};
    if (!file.isOpen() || !file.describe(facts))
        return systemFailure(path);
    if (!S_ISREG(facts.st_mode))
        return std::unexpected(Failure{"failure_store_nofile", {path}});

    const auto size = static_cast<std::size_t>(facts.st_size);
    if (auto store = scanStore([&](char* buffer, std::size_t room) { return file.read(buffer, room); }, size))
        return std::move(*store);

    file.rewind();
    std::string bytes;
    if (!readWhole(file, size, bytes))
        return systemFailure(path);
    return parse(std::move(bytes), path);
}

std::expected<StoredCatalogue, Failure> readStoreText(std::string_view bytes, const QString& path)
{
    std::string_view rest = bytes;
    const ByteSource source = [&](char* buffer, std::size_t room) {
        const std::size_t count = rest.copy(buffer, room);
        rest.remove_prefix(count);
        return static_cast<std::ptrdiff_t>(count);
    };
    if (auto store = scanStore(source, bytes.size()))
        return std::move(*store);
    return parse(std::string(bytes), path);
}

} // namespace tessera
