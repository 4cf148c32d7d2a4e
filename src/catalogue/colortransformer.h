#pragma once

#include <QColor>

#include <memory>
#include <optional>

namespace tessera {

class RomFolders;
class UserDefaults;

/// The text colour of a set's row. With colouring on, a set without an archive in the ROM folder is half
/// transparent.
class ColorTransformer
{
public:
    explicit ColorTransformer(const UserDefaults& defaults)
        : m_defaults(defaults)
    {
    }

    /// Where the names in the ROM folder are known, they are asked; else the file system is, at each call.
    void setRomFolders(std::shared_ptr<const RomFolders> folders) { m_folders = std::move(folders); }
    /// No colour for no name, which a null string stands for.
    std::optional<QColor> transformedValue(const QString& setName) const;

    /// The stored colours, or the first ones where none or a broken one is stored.
    QColor usualColor() const;
    QColor colorWithoutArchive() const;

private:
    bool hasArchive(const QString& setName) const;

    const UserDefaults& m_defaults;
    std::shared_ptr<const RomFolders> m_folders;
};

} // namespace tessera
