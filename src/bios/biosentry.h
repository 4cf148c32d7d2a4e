#pragma once

#include "core/propertylist.h"

#include <QString>

#include <expected>
#include <vector>

namespace tessera {

/// A row of the BIOS list, with the rows beneath it.
struct BiosEntry {
    QString bios; ///< what the emulator's -bios takes; a single blank is the BIOS that it takes by itself
    QString rom; ///< the archive's base name
    QString name; ///< what it is called
    std::vector<BiosEntry> children;
    /// What a file held besides.
    std::optional<PropertyList> kept = std::nullopt;

    /// What is shown of them; what a file held besides goes with it.
    bool operator==(const BiosEntry& other) const
    {
        return bios == other.bios && rom == other.rom && name == other.name && children == other.children;
    }
};

using BiosEntries = std::vector<BiosEntry>;

inline constexpr QLatin1StringView defaultBios(" ");
/// The first two rows stand for no BIOS and for the default one; the real ones follow.
inline constexpr int fixedRows = 2;

/// The rows of a property list: an array of dictionaries.
std::expected<BiosEntries, Failure> readBiosEntries(const QString& path);
/// `path` is for the failures' texts.
std::expected<QByteArray, Failure> biosEntriesXml(const BiosEntries& entries, const QString& path);

/// Both lists as one: `known` first, each with what only the other one has beneath it, then what only the
/// other one has. Entries are the same that have the same archive and BIOS.
BiosEntries mergedBiosEntries(BiosEntries known, const BiosEntries& found);

/// Where the second list first differs from the first one: a row, then one beneath it, and so on.
std::vector<int> firstDifference(const BiosEntries& one, const BiosEntries& other);

/// Every BIOS that an entry names, once, in their order.
QStringList biosNames(const BiosEntries& entries);

/// Whether "R.zip" lies in the folder. What is no plain file name lies nowhere.
bool hasArchive(const QString& folder, const QString& rom);

} // namespace tessera
