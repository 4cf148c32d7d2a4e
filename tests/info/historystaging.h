#pragma once

#include "info/ui/historyobject.h"
#include "info/ui/historywindow.h"
#include "platform/defaultscontroller.h"
#include "support/scripteddesktop.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

namespace tessera::test {

/// The history window with its two files in a folder of its own, and what is around them.
class HistoryStaging : public QObject
{
protected:
    /// Settings without files or a window.
    void stage()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_desktop = std::make_unique<ScriptedDesktop>();
        m_stored = std::make_unique<UserDefaults>(m_folder->filePath("settings.ini"));
        m_defaults = std::make_unique<DefaultsController>(*m_stored);
        m_defaults->setInitialValues(QString(), QString());
    }

    void make()
    {
        m_window = std::make_unique<HistoryWindow>();
        m_object = std::make_unique<HistoryObject>(*m_desktop, *m_defaults, *m_window);
    }

    void clear()
    {
        m_object.reset();
        m_window.reset();
        m_defaults.reset();
        m_stored.reset();
        m_desktop.reset();
    }

    void write(const QString& name, const QByteArray& bytes) const
    {
        QFile file(m_folder->filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }

    void setPaths()
    {
        m_defaults->setText(keys::HistoryPath, m_folder->filePath("history.dat"));
        m_defaults->setText(keys::MameinfoPath, m_folder->filePath("mameinfo.dat"));
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<ScriptedDesktop> m_desktop;
    std::unique_ptr<UserDefaults> m_stored;
    std::unique_ptr<DefaultsController> m_defaults;
    std::unique_ptr<HistoryWindow> m_window;
    std::unique_ptr<HistoryObject> m_object;
};

} // namespace tessera::test
