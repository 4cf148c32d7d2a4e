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
    , m_emulatorFolders(emulatorFolders)
{
    if (m_romFolder)
        m_romNames = FolderNames::read(*m_romFolder);
    for (const QString& folder : m_emulatorFolders)
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

Have RomFolders::have(const GameRecord& record) const
{
    if (!record.has(Field::Name))
        return Have::Missing;
    if (holds(record[Field::Name]))
        return Have::Here;
    const std::string_view parent = record[Field::Cloneof];
    return !parent.empty() && parent != record[Field::Name] && holds(parent) ? Have::InParent : Have::Missing;
}

std::vector<Have> RomFolders::haves(std::span<const GameRecord> content) const
{
    std::vector<Have> haves;
    haves.reserve(content.size());
    for (const GameRecord& record : content)
        haves.push_back(have(record));
    return haves;
}

} // namespace tessera
