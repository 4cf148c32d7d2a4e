#include "tools/ui/conversionpage.h"

#include "widgets/named.h"

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

    button_isbios = named("button_isbios", new QCheckBox(qtTrId("convert_bios"), this));
    button_ismechanical = named("button_ismechanical", new QCheckBox(qtTrId("convert_mechanical"), this));
    button_isdevice = named("button_isdevice", new QCheckBox(qtTrId("convert_devices"), this));
    addRow(qtTrId("convert_leave_out"), {button_isbios, button_ismechanical, button_isdevice});
    addLine();
    savedText = named("savedText", addNote());
    savedText->setTextFormat(Qt::PlainText);
    button_useNow = makeButton("button_useNow", qtTrId("convert_use"));
    button_changes = makeButton("button_changes", qtTrId("convert_changes"));
    addRow(QString(), {button_useNow, button_changes});
    addStretch();
    showSaved({});
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
