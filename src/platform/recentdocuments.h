#pragma once

#include "platform/userdefaults.h"

namespace tessera {

/// The last files that were opened, newest first. Kept with the settings, since a Linux desktop has no list
/// of its own that every program may write.
class RecentDocuments
{
public:
    explicit RecentDocuments(UserDefaults& defaults);

    void note(const QString& path);
    /// Absolute paths, at most ten; they need not exist.
    QStringList paths() const;

private:
    UserDefaults& m_defaults;
};

} // namespace tessera
