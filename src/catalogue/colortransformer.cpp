#include "catalogue/colortransformer.h"

#include "catalogue/romfolders.h"
#include "platform/userdefaults.h"

#include <QFileInfo>

namespace tessera {

namespace {

/// A stored colour, "#AARRGGBB", and white at 0.9, opaque or half transparent, where none or a broken one is
/// stored.
struct TextColor {
    QLatin1StringView key;
    QRgb fallback;
};

constexpr TextColor usual{keys::TableViewTextColor.name, 0xffe6e6e6};
constexpr TextColor withoutArchive{keys::TableViewTextColor2.name, 0x80e6e6e6};

QColor stored(const UserDefaults& defaults, const TextColor& color)
{
    const QColor chosen = QColor::fromString(defaults.string(color.key));
    return chosen.isValid() ? chosen : QColor::fromRgba(color.fallback);
}

} // namespace

std::optional<QColor> ColorTransformer::transformedValue(const QString& setName) const
{
    if (setName.isNull())
        return std::nullopt;
    const bool coloring = m_defaults.flag(keys::GamelistColoring.name);
    return !coloring || hasArchive(setName) ? usualColor() : colorWithoutArchive();
}

QColor ColorTransformer::usualColor() const
{
    return stored(m_defaults, usual);
}

QColor ColorTransformer::colorWithoutArchive() const
{
    return stored(m_defaults, withoutArchive);
}

bool ColorTransformer::hasArchive(const QString& setName) const
{
    const auto folder = m_defaults.value(keys::RomsPath.name);
    if (!folder)
        return false;
    if (m_folders && m_folders->romFolder() == folder->toString())
        return m_folders->hasArchive(setName.toStdString());
    return QFileInfo::exists(folder->toString() + u'/' + setName + QStringLiteral(".zip"));
}

} // namespace tessera
