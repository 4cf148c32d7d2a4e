#pragma once

#include "platform/defaultscontroller.h"

#include <QTemporaryDir>

namespace tessera::test {

/// Settings of their own, in which nothing is stored.
class Settings
{
    QTemporaryDir m_folder;
    UserDefaults m_stored{m_folder.filePath(QStringLiteral("settings.ini"))};

public:
    DefaultsController defaults{m_stored};
};

} // namespace tessera::test
