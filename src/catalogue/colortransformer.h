#pragma once

#include <QColor>

#include <optional>

namespace tessera {

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

    /// No colour for no name, which a null string stands for. Looks for the archive anew at each call.
    std::optional<QColor> transformedValue(const QString& setName) const;

private:
    bool hasArchive(const QString& setName) const;

    const UserDefaults& m_defaults;
};

} // namespace tessera
