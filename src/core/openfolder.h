#pragma once

#include <memory>
#include <string>
#include <utility>

#include <dirent.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tessera {

/// An open file or folder of the file system; closed at the end.
class FileHandle
{
public:
    explicit FileHandle(int number)
        : m_number(number)
    {
    }
    FileHandle(FileHandle&& other) noexcept
        : m_number(std::exchange(other.m_number, -1))
    {
    }
    FileHandle& operator=(FileHandle&&) = delete;
    ~FileHandle() { close(); }

    explicit operator bool() const { return m_number >= 0; }
    int number() const { return m_number; }
    /// False where what was written did not arrive after all.
    bool close() { return m_number < 0 || ::close(std::exchange(m_number, -1)) == 0; }

private:
    int m_number;
};

using FolderEntries = std::unique_ptr<DIR, decltype([](DIR* folder) { ::closedir(folder); })>;

/// What makes two paths the same file.
struct FileIdentity {
    dev_t device = 0;
    ino_t number = 0;

    static FileIdentity of(const struct stat& facts) { return {facts.st_dev, facts.st_ino}; }
    friend bool operator==(const FileIdentity&, const FileIdentity&) = default;
};

} // namespace tessera
