#pragma once

#include "platform/defaultscontroller.h"

namespace tessera {

/// The last files that were opened, newest first. Kept with the settings, since a Linux desktop has no list
/// of its own that every program may write.
class RecentDocuments
{
public:
    explicit RecentDocuments(DefaultsController& defaults);

    void note(const QString& path);
    /// Absolute paths, at most ten; they need not exist.
    QStringList paths() const;

private:
    DefaultsController& m_defaults;
};

} // namespace tessera
