#include "favourites/keptfile.h"

#include "core/atomicfile.h"
#include "core/keptcopy.h"

#include <QFileInfo>

namespace tessera {

bool KeptFile::exists() const
{
    return QFileInfo::exists(m_path);
}

std::expected<PropertyList, Failure> KeptFile::read(PropertyList::Kind outermost)
{
    const FileState state = FileState::of(m_path);
    auto list = readPropertyList(m_path);
    if (list && list->kind() != outermost)
        return std::unexpected(Failure{"failure_favourites_foreign", {m_path}});
    if (list)
        m_known = state;
    return list;
}

std::expected<void, Failure> KeptFile::write(const QByteArray& text)
{
    if (FileState::of(m_path) != m_known) {
        if (auto kept = keepAs(m_path, datedName(m_path, QDateTime::currentDateTime())); !kept)
            return std::unexpected(kept.error());
    }
    const std::array<std::string_view, 1> pieces{
        std::string_view(text.constData(), static_cast<std::size_t>(text.size()))};
    if (auto written = writeAtomically(m_path, pieces); !written)
        return written;
    m_known = FileState::of(m_path);
    return {};
}

} // namespace tessera
