#pragma once

#include "catalogue/nameset.h"
#include "tools/copyitem.h"
#include "tools/printedtext.h"

#include <QLatin1StringView>
#include <QString>

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tessera {

/// What the tool says and logs; the same in every language.
namespace separationtexts {
inline constexpr QLatin1StringView checking("Now Checking...");
inline constexpr QLatin1StringView noRoms("ROMs folder is not found.");
inline constexpr QLatin1StringView noListfull("listfull.txt file is not found.");
inline constexpr QLatin1StringView listed("All: %1 ROMs");
inline constexpr QLatin1StringView started("Now Separating...");
inline constexpr QLatin1StringView noDestination("Move folder is not found.");
inline constexpr QLatin1StringView noRows("No Separating file.");
inline constexpr QLatin1StringView summary("%1 ROMs ( Support: %2 / Moved: %3 )");
inline constexpr QStringView copied(u"ファイルのコピーに成功：%1 → %2");
inline constexpr QStringView notCopied(u"ファイルのコピーに失敗：%1");
inline constexpr QLatin1StringView support("Support");
// Deliberate: what is called moved is copied, and stays.
inline constexpr QLatin1StringView moved("Moved");
} // namespace separationtexts

/// What is in a ROM folder, as the file system's bytes and in its order; without what is hidden and the
/// folder's own icon. Nothing where the folder cannot be read.
std::vector<std::string> romNames(const QString& folder);

/// The sets that an emulator lists.
class SupportedNames
{
public:
    SupportedNames() = default;
    explicit SupportedNames(const ListedSets& listed);
    explicit SupportedNames(std::string_view listfull);
    /// None where the file cannot be read.
    static SupportedNames read(const QString& listfull);

    /// A file is looked up without its ending and in lower case.
    bool supports(std::string_view fileName) const;

private:
    NameSet m_names;
};

/// What a separation would do.
struct SeparationPlan {
    std::size_t supported = 0;
    std::size_t toCopy = 0;
    std::size_t alreadyThere = 0; ///< not supported either, but the destination has something of that name
    std::int64_t bytes = 0; ///< of what is to be copied
    std::optional<std::int64_t> free; ///< bytes at the destination
};

/// A row that was marked, and copied where it is not supported.
struct SeparatedRow {
    std::size_t index = 0;
    bool isSupported = false;
    QString source;
    QString destination;
    std::optional<Failure> failure;

    /// The line in the log; nothing for a row that is supported.
    std::optional<QString> logLine() const;
};

struct SeparationCounts {
    int supported = 0;
    int moved = 0;
    bool isCancelled = false; ///< then not every row was marked
};

/// Copies what the emulator does not list out of a ROM folder into another.
class Separation
{
public:
    Separation(const QString& roms, const QString& destination, SupportedNames supported);

    SeparationPlan plan(std::span<const std::string> names, const std::stop_token& stop) const;
    /// In the order of `names`; `marked` is told of each.
    SeparationCounts run(std::span<const std::string> names, const Watch& watch,
                         const std::function<void(const SeparatedRow&)>& marked) const;
    /// One file or folder.
    SeparatedRow copy(const std::string& name) const;

private:
    SeparatedRow copy(const std::string& name, ItemCopier& copier) const;

    std::string m_roms;
    std::string m_destination;
    SupportedNames m_supported;
};

QString separationSummary(std::size_t count, const SeparationCounts& counts);

} // namespace tessera
