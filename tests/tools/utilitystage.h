#pragma once

#include "platform/defaultscontroller.h"
#include "support/scripteddesktop.h"
#include "support/testmain.h"
#include "tools/ui/utilityfoot.h"
#include "tools/ui/utilityobject.h"
#include "tools/ui/utilitywindow.h"

#include <QDir>
#include <QFile>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTemporaryDir>

namespace tessera::test {

/// The utility window on a desktop that answers from a script.
struct UtilityStage {
    QTemporaryDir folder;
    ScriptedDesktop desktop;
    UserDefaults defaults{folder.filePath(QStringLiteral("settings.ini"))};
    DefaultsController controller{defaults};
    /// Before the window: its boxes show them.
    bool hasInitialValues
        = (controller.setInitialValues(QStringLiteral("Sans"), QStringLiteral("/home")), true);
    UtilityObject utility{desktop, controller};
    UtilityWindow& window = utility.utilityWindow();
    UtilityFoot& foot = *window.foot;

    QString path(const QString& name) const { return folder.filePath(name); }

    QString file(const QString& name, const QByteArray& bytes) const
    {
        QFile file(path(name));
        if (!QDir().mkpath(QFileInfo(file).path()) || !file.open(QIODevice::WriteOnly)
            || file.write(bytes) != bytes.size())
            QTest::qFail("no file", __FILE__, __LINE__);
        return file.fileName();
    }

    QByteArray read(const QString& name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QString information() const { return foot.infoTextField->text(); }
    bool isIndicatorRunning() const { return foot.progressInd->maximum() == 0; }
    bool isBusy() const { return !foot.button_cancel->isHidden(); }

    /// As a person would; until what it began has ended.
    void press(QPushButton* button)
    {
        QTest::mouseClick(button, Qt::LeftButton);
        if (!QTest::qWaitFor([this] { return !isBusy(); }, 30'000))
            QTest::qFail("it never ends", __FILE__, __LINE__);
    }
};

} // namespace tessera::test
