#pragma once

#include <QString>

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tessera {

/// Which sets a folder holds: "name.zip", or anything of that very name. Tens of thousands are asked for, so
/// the folder is read once; what its names cannot tell is asked of the file system, with the same answers.
class FolderSets
{
public:
    static FolderSets read(const QString& folder);

    bool holds(std::string_view setName) const;
    /// The same of many at once, which takes less time for each.
    std::vector<std::uint8_t> holdEach(std::span<const std::string_view> setNames) const;

private:
    explicit FolderSets(QString folder);
    bool ask(std::string_view setName) const;
    void add(std::string_view setName);
    void makeRoom();
    bool holds(std::string_view setName, std::size_t hash) const;
    std::size_t likelySlot(std::size_t hash) const;
    std::size_t slotOf(std::string_view setName, std::size_t hash) const;
    std::string_view nameAt(std::size_t start) const;

    // The hash's other half spares most looks at names.
    struct Slot {
        std::uint32_t hash;
        std::uint32_t start; ///< 0 is free
    };

    QString m_folder;
    bool m_canTell = false;
    std::string m_text{'\0'}; ///< a byte with its length before each name
    std::vector<std::size_t> m_hashes; ///< of the names, until they have their slots
    std::vector<Slot> m_slots; ///< a name stands at or behind its hash
};

} // namespace tessera
