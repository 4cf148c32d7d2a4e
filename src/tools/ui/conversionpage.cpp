#include "tools/ui/conversionpage.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace tessera {

ConversionPage::ConversionPage(DefaultsController& defaults, QWidget* parent)
    : ToolPage(parent)
    , button_convert(makeFootButton("button_convert", qtTrId("convert_button")))
{
    addHeading(qtTrId("convert_heading"), qtTrId("convert_explanation"));
    listxmlTextField = addPath(selectlistxml, defaults);
    mame32jpTextField = addPath(selectlocalize, defaults);

    button_isbios = makeBox(qtTrId("convert_bios"), QStringLiteral("button_isbios"));
    button_ismechanical = makeBox(qtTrId("convert_mechanical"), QStringLiteral("button_ismechanical"));
    button_isdevice = makeBox(qtTrId("convert_devices"), QStringLiteral("button_isdevice"));
    addRow(qtTrId("convert_leave_out"), {button_isbios, button_ismechanical, button_isdevice});
    addLine();
    savedText = addNote();
    savedText->setObjectName(QStringLiteral("savedText"));
    savedText->setTextFormat(Qt::PlainText);
    button_useNow = makeButton("button_useNow", qtTrId("convert_use"));
    button_changes = makeButton("button_changes", qtTrId("convert_changes"));
    addRow(QString(), {button_useNow, button_changes});
    addStretch();
    showSaved({});
}

QCheckBox* ConversionPage::makeBox(const QString& label, const QString& name)
{
    auto* box = new QCheckBox(label, this);
    box->setObjectName(name);
    return box;
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
