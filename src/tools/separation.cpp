#include "tools/separation.h"

#include "core/encodings.h"

#include <QFile>

#include <algorithm>
#include <filesystem>

namespace tessera {

namespace {

namespace fs = std::filesystem;

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
    std::error_code error;
    const auto space = fs::space(folder, error);
    return error ? std::nullopt : std::optional(static_cast<std::int64_t>(space.available));
}

} // namespace

std::vector<std::string> romNames(const QString& folder)
{
    std::vector<std::string> names;
    std::error_code error;
    const std::string path = QFile::encodeName(folder + u'/').toStdString();
    for (fs::directory_iterator entry(path, error); entry != fs::directory_iterator();
         entry.increment(error)) {
        if (const std::string name = entry->path().filename(); isListed(name))
            names.push_back(name);
    }
    return names;
}

SupportedNames::SupportedNames(const ListedSets& listed)
{
    m_names.reserve(listed.size());
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

// Nearly all names are ASCII in lower case and need no conversion.
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
        std::error_code ignored;
        if (stop.stop_requested())
            break;
        if (m_supported.supports(name)) {
            ++plan.supported;
        } else if (fs::exists(fs::symlink_status(m_destination + '/' + name, ignored))) {
            ++plan.alreadyThere;
        } else {
            ++plan.toCopy;
            plan.bytes += itemSize(m_roms, name, m_destination);
        }
    }
    return plan;
}

SeparationCounts Separation::run(std::span<const std::string> names, const Watch& watch,
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
