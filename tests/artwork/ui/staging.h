#pragma once

#include "platform/defaultscontroller.h"
#include "support/scripteddesktop.h"

#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QTemporaryDir>

namespace tessera::test {

/// A folder of pictures, the settings that name it, and a desktop.
class PictureStaging
{
public:
    PictureStaging()
        : m_stored(m_folder.filePath(QStringLiteral("settings.ini")))
        , defaults(m_stored)
    {
        defaults.setInitialValues(QString(), QString());
        for (const auto& [key, name] :
             {std::pair(keys::SnapPath, "snap"), std::pair(keys::TitlesnapPath, "titles"),
              std::pair(keys::GameflyersPath, "flyers")}) {
            const QString path = m_folder.filePath(QLatin1String(name));
            QDir().mkpath(path);
            defaults.setText(key, path);
        }
    }

    QString path(const QString& name) const { return m_folder.filePath(name); }

    /// A picture of one colour in the folder, with all folders that its path needs.
    QString paint(const QString& name, QSize size = {4, 3}, QColor color = Qt::red) const
    {
        const QString file = path(name);
        QDir().mkpath(QFileInfo(file).absolutePath());
        QImage image(size, QImage::Format_RGB32);
        image.fill(color);
        if (!image.save(file))
            qFatal("no picture");
        return file;
    }

private:
    QTemporaryDir m_folder;
    UserDefaults m_stored;

public:
    DefaultsController defaults;
    ScriptedDesktop desktop;
};

} // namespace tessera::test
