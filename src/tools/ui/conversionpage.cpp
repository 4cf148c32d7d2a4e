#include "tools/ui/conversionpage.h"

#include "widgets/boundcontrols.h"
#include "widgets/pathfield.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>

namespace tessera {

ConversionPage::ConversionPage(DefaultsController& defaults, QWidget* parent)
    : ToolPage(parent)
    , button_convert(new QPushButton(qtTrId("convert_button"), this))
{
    addHeading(qtTrId("convert_heading"), qtTrId("convert_explanation"));
    const PathField* listxml
        = addPath(qtTrId("convert_listxml"), QStringLiteral("listxmlTextField"), QStringLiteral("listxml"));
    const PathField* titles
        = addPath(qtTrId("convert_titles"), QStringLiteral("mame32jpTextField"), QStringLiteral("mame32jp"));
    listxmlTextField = listxml->field();
    button_listxml = listxml->chooseButton();
    reveal_listxml = listxml->revealButton();
    mame32jpTextField = titles->field();
    button_mame32jp = titles->chooseButton();
    reveal_mame32jp = titles->revealButton();

    button_isbios = makeBox(qtTrId("convert_bios"), QStringLiteral("button_isbios"));
    button_ismechanical = makeBox(qtTrId("convert_mechanical"), QStringLiteral("button_ismechanical"));
    button_isdevice = makeBox(qtTrId("convert_devices"), QStringLiteral("button_isdevice"));
    addRow(qtTrId("convert_leave_out"), {button_isbios, button_ismechanical, button_isdevice});
    addStretch();
    button_convert->setObjectName(QStringLiteral("button_convert"));

    bind(*listxmlTextField, defaults, keys::listxmlPath);
    bind(*mame32jpTextField, defaults, keys::localizePath);
}

QCheckBox* ConversionPage::makeBox(const QString& label, const QString& name)
{
    auto* box = new QCheckBox(label, this);
    box->setObjectName(name);
    return box;
}

} // namespace tessera
