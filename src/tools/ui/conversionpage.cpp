#include "tools/ui/conversionpage.h"

#include "widgets/boundcontrols.h"
#include "widgets/pathfield.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QToolButton>

namespace tessera {

namespace {

// "&Year" and "年(&Y)" alike.
QString withoutMnemonic(QString label)
{
    static const QRegularExpression appended(QStringLiteral("\\(&.\\)"));
    return label.remove(appended).remove(QLatin1Char('&'));
}

} // namespace

ConversionPage::ConversionPage(DefaultsController& defaults, QWidget* parent)
    : FormPage(parent)
{
    addHeading(qtTrId("convert_heading"), qtTrId("convert_explanation"));
    const PathField* listxml = addPath(qtTrId("convert_listxml"), QStringLiteral("listxml"));
    const PathField* titles = addPath(qtTrId("convert_titles"), QStringLiteral("mame32jp"));
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

    bind(*listxmlTextField, defaults, keys::listxmlPath);
    bind(*mame32jpTextField, defaults, keys::localizePath);
}

PathField* ConversionPage::addPath(const QString& label, const QString& name)
{
    auto* path = new PathField(withoutMnemonic(label), qtTrId("tool_choose"), qtTrId("tool_reveal"), this);
    path->field()->setObjectName(name + QStringLiteral("TextField"));
    path->chooseButton()->setObjectName(QStringLiteral("button_") + name);
    path->revealButton()->setObjectName(QStringLiteral("reveal_") + name);
    addRow(label, path);
    return path;
}

QCheckBox* ConversionPage::makeBox(const QString& label, const QString& name)
{
    auto* box = new QCheckBox(label, this);
    box->setObjectName(name);
    return box;
}

} // namespace tessera
