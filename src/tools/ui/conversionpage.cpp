#include "tools/ui/conversionpage.h"

#include "widgets/boundcontrols.h"
#include "widgets/pathfield.h"

#include <QCheckBox>
#include <QLabel>
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
    addLine();
    savedText = addNote();
    savedText->setObjectName(QStringLiteral("savedText"));
    savedText->setTextFormat(Qt::PlainText);
    button_useNow = makeButton(qtTrId("convert_use"), QStringLiteral("button_useNow"));
    button_changes = makeButton(qtTrId("convert_changes"), QStringLiteral("button_changes"));
    addRow(QString(), {button_useNow, button_changes});
    addStretch();
    showSaved({});
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

QPushButton* ConversionPage::makeButton(const QString& label, const QString& name)
{
    auto* button = new QPushButton(label, this);
    button->setObjectName(name);
    return button;
}

void ConversionPage::showSaved(const QString& path)
{
    savedText->setText(path.isEmpty() ? qtTrId("convert_nothing_saved") : qtTrId("convert_saved").arg(path));
    button_useNow->setEnabled(!path.isEmpty());
    button_changes->hide();
}

void ConversionPage::showUsed(const QString& changes)
{
    savedText->setText(changes);
    button_useNow->setEnabled(false);
    button_changes->show();
}

} // namespace tessera
