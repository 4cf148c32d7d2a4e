#include "tools/separation.h"

#include "core/encodings.h"
#include "core/openfolder.h"

#include <QFile>

#include <algorithm>

#include <sys/statvfs.h>

namespace tessera {

namespace {

constexpr std::string_view folderIcon = "Icon\r";

bool isListed(std::string_view name)
{
    return !name.starts_with('.') && name != folderIcon;
}

QString decoded(const std::string& path)
{
    return QFile::decodeName(QByteArray::fromStdString(path));
}

std::optional<std::int64_t> freeSpace(const std::string& folder)
{
    struct statvfs facts{};
    if (::statvfs(folder.c_str(), &facts) != 0)
        return std::nullopt;
    return static_cast<std::int64_t>(facts.f_bavail) * static_cast<std::int64_t>(facts.f_frsize);
}

} // namespace

std::vector<std::string> romNames(const QString& folder)
{
    std::vector<std::string> names;
    const FolderEntries entries(::opendir(QFile::encodeName(folder + u'/').constData()));
    while (const dirent* entry = entries ? ::readdir(entries.get()) : nullptr) {
        if (isListed(entry->d_name))
            names.emplace_back(entry->d_name);
    }
    return names;
}

SupportedNames::SupportedNames(const ListedSets& listed)
{
    for (std::size_t i = 0; i < listed.size(); ++i)
        m_names.insert(listed[i]);
}

SupportedNames::SupportedNames(std::string_view listfull)
    : SupportedNames(ListedSets(listfull))
{
}

SupportedNames SupportedNames::read(const QString& listfull)
{
    const auto listed = ListedSets::read(listfull);
    return listed ? SupportedNames(*listed) : SupportedNames();
}

// Nearly all names are in lower case already; letters outside ASCII have one, too.
bool SupportedNames::supports(std::string_view fileName) const
{
    const std::string_view name = fileName.substr(0, fileName.rfind('.'));
    if (std::ranges::all_of(fileName, [](unsigned char c) { return c < 0x80 && (c < 'A' || c > 'Z'); }))
        return m_names.contains(name);
    return isUtf8(fileName) && m_names.contains(QString::fromUtf8(name).toLower().toStdString());
}

std::optional<QString> SeparatedRow::logLine() const
{
    if (isSupported)
        return std::nullopt;
    if (failure)
        return separationtexts::notCopied.toString().arg(failure->text());
    return separationtexts::copied.toString().arg(source, destination);
}

Separation::Separation(const QString& roms, const QString& destination, SupportedNames supported)
    : m_roms(QFile::encodeName(roms).toStdString())
    , m_destination(QFile::encodeName(destination).toStdString())
    , m_supported(std::move(supported))
{
}

SeparationPlan Separation::plan(std::span<const std::string> names, const std::stop_token& stop) const
{
    SeparationPlan plan;
    plan.free = freeSpace(m_destination);
    for (const std::string& name : names) {
        struct stat facts{};
        if (stop.stop_requested())
            break;
        if (m_supported.supports(name)) {
            ++plan.supported;
        } else if (::lstat((m_destination + '/' + name).c_str(), &facts) == 0) {
            ++plan.alreadyThere;
        } else {
            ++plan.toCopy;
            plan.bytes += itemSize(m_roms, name, m_destination);
        }
    }
    return plan;
}

SeparationCounts Separation::run(std::span<const std::string> names, const CopyWatch& watch,
                                 const std::function<void(const SeparatedRow&)>& marked) const
{
    SeparationCounts counts;
    ItemCopier copier(m_roms, m_destination, watch);
    for (std::size_t index = 0; index < names.size(); ++index) {
        counts.isCancelled = watch.stop.stop_requested();
        if (counts.isCancelled)
            break;
        SeparatedRow row;
        if (m_supported.supports(names[index]))
            row.isSupported = true;
        else
            row = copy(names[index], copier);
        // What was stopped half way is not there.
        counts.isCancelled = row.failure && row.failure->key == std::string_view(copyCancelled);
        if (counts.isCancelled)
            break;
        row.index = index;
        ++(row.isSupported ? counts.supported : counts.moved);
        marked(row);
    }
    return counts;
}

SeparatedRow Separation::copy(const std::string& name) const
{
    ItemCopier copier(m_roms, m_destination, {});
    return copy(name, copier);
}

SeparatedRow Separation::copy(const std::string& name, ItemCopier& copier) const
{
    SeparatedRow row;
    row.source = decoded(m_roms + '/' + name);
    row.destination = decoded(m_destination + '/' + name);
    if (auto copied = copier.copy(name); !copied)
        row.failure = std::move(copied.error());
    return row;
}

QString separationSummary(std::size_t count, const SeparationCounts& counts)
{
    return QString(separationtexts::summary).arg(count).arg(counts.supported).arg(counts.moved);
}

} // namespace tessera
