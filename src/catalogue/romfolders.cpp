#include "catalogue/romfolders.h"

#include <algorithm>

namespace tessera {

namespace {

bool emulatorFinds(const FolderNames& names, const std::string& setName)
{
    return names.find(setName + ".zip") || names.find(setName + ".7z")
        || (!setName.empty() && names.find(setName) == FolderNames::Kind::Folder);
}

} // namespace

RomFolders::RomFolders(std::optional<QString> romFolder, const QStringList& emulatorFolders)
    : m_romFolder(std::move(romFolder))
{
    if (m_romFolder)
        m_romNames = FolderNames::read(*m_romFolder);
    for (const QString& folder : emulatorFolders)
        m_emulatorNames.push_back(FolderNames::read(folder));
}

bool RomFolders::hasArchive(std::string_view setName) const
{
    return m_romNames && m_romNames->find(std::string(setName) + ".zip");
}

bool RomFolders::holds(std::string_view setName) const
{
    const std::string name(setName);
    return hasArchive(name) || std::ranges::any_of(m_emulatorNames, [&](const FolderNames& names) {
               return emulatorFinds(names, name);
           });
}

Have RomFolders::have(std::optional<std::string_view> name, std::string_view parent) const
{
    if (!name)
        return Have::Missing;
    if (holds(*name))
        return Have::Here;
    return !parent.empty() && parent != *name && holds(parent) ? Have::InParent : Have::Missing;
}

Have RomFolders::have(const GameRecord& record) const
{
    const std::string_view name = record[Field::Name];
    return have(record.has(Field::Name) ? std::optional(name) : std::nullopt, record[Field::Cloneof]);
}

std::vector<RomFolders::SetNames> RomFolders::setNames(std::span<const GameRecord> content)
{
    std::vector<SetNames> names;
    names.reserve(content.size());
    for (const GameRecord& record : content) {
        SetNames& set = names.emplace_back();
        if (record.has(Field::Name))
            set.name = record[Field::Name];
        set.parent = record[Field::Cloneof];
    }
    return names;
}

std::vector<Have> RomFolders::haves(std::span<const SetNames> sets) const
{
    std::vector<Have> haves;
    haves.reserve(sets.size());
    for (const SetNames& set : sets)
        haves.push_back(have(set.name, set.parent));
    return haves;
}

} // namespace tessera
