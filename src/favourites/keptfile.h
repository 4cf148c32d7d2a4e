#pragma once

#include "core/filestate.h"
#include "core/propertylist.h"

namespace tessera {

/// A property list of the user's. Whatever stands at its path and was not read, because it is broken or
/// because somebody has written it since, is kept under a dated name before ours takes its place.
class KeptFile
{
public:
    explicit KeptFile(QString path)
        : m_path(std::move(path))
    {
    }

    QString path() const { return m_path; }
    bool exists() const;

    /// An outermost value of another kind is a failure.
    std::expected<PropertyList, Failure> read(PropertyList::Kind outermost);
    std::expected<void, Failure> write(const QByteArray& text);

private:
    QString m_path;
    FileState m_known; ///< of the file as it was read or written last
};

} // namespace tessera
