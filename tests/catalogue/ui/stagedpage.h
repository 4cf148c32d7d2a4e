#pragma once

#include "catalogue/ui/appearancepage.h"
#include "catalogue/ui/rowcolors.h"
#include "catalogue/ui/tablefont.h"
#include "platform/defaultscontroller.h"
#include "support/scripteddesktop.h"

#include <QTemporaryDir>

namespace tessera::test {

/// The page with its two controllers on a scripted desktop, and settings of its own.
class StagedPage
{
public:
    /// The font size, where one is given, stands in the settings before the page is made.
    explicit StagedPage(const QVariant& fontSize = QVariant())
        : page(prepared(fontSize))
    {
        font.setPage(page);
    }

    QTemporaryDir folder;
    ScriptedDesktop desktop;
    UserDefaults defaults{folder.filePath(QStringLiteral("settings.ini"))};
    DefaultsController controller{defaults};
    AppearancePage page;
    TableFont font{desktop, controller};
    RowColors colors{desktop, controller, page};

private:
    DefaultsController& prepared(const QVariant& fontSize)
    {
        controller.setInitialValues(QStringLiteral("DejaVu Sans"), QString());
        if (fontSize.isValid())
            defaults.setValue(keys::fontSize.name, fontSize);
        return controller;
    }
};

} // namespace tessera::test
