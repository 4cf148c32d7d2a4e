#include "tools/ui/scriptpage.h"

#include "launch/popupitems.h"
#include "widgets/boundcontrols.h"
#include "widgets/named.h"

#include <QComboBox>
#include <QLabel>
#include <QPushButton>

#include <span>

namespace tessera {

namespace {

constexpr int popupWidth = 260;
constexpr int pictureSize = 48;

constexpr std::array formats{textKey("script_tool"), textKey("script_sh"), textKey("script_scpt")};
constexpr std::array fileNames{textKey("script_setname"),         textKey("script_title"),
                               textKey("script_titlejp"),         textKey("script_noname"),
                               textKey("script_emulatorsetname"), textKey("script_emulatortitle"),
                               textKey("script_emulatortitlejp")};
constexpr std::array optionChoices{textKey("script_withoptions"), textKey("script_withoutoptions")};

QComboBox* makePopup(const char* name, std::span<const char* const> labelKeys, QWidget* parent)
{
    auto* popup = named(name, new QComboBox(parent));
    popup->setMinimumWidth(popupWidth);
    popup->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    for (const char* key : labelKeys)
        popup->addItem(qtTrId(key));
    return popup;
}

} // namespace

ScriptPage::ScriptPage(DefaultsController& defaults, QWidget* parent)
    : ToolPage(parent)
    , formatPop(makePopup("formatPop", formats, this))
    , emulatorPop(makePopup("emulatorPop", {}, this))
    , filenamePop(makePopup("filenamePop", fileNames, this))
    , preoptionPop(makePopup("preoptionPop", optionChoices, this))
    , scriptimageView(named("scriptimageView", new QLabel(this)))
    , button_launcher(makeFootButton("button_launcher", qtTrId("script_launcher")))
    , button_make(makeFootButton("button_make", qtTrId("script_make")))
{
    formatPop->setAccessibleName(qtTrId("script_format"));
    scriptimageView->setFixedSize(pictureSize, pictureSize);
    button_launcher->setToolTip(qtTrId("script_launcher_tip"));
    // The launch modes, under the same titles.
    for (const PopupItem& item : launchModes)
        emulatorPop->addItem(item.title != nullptr ? QString::fromLatin1(item.title) : qtTrId(item.labelKey));
    addHeading(qtTrId("script_page"), qtTrId("script_explanation"));
    addRow(qtTrId("script_format"), {formatPop, scriptimageView});
    addRow(qtTrId("script_emulator"), emulatorPop);
    addRow(qtTrId("script_options"), preoptionPop);
    addLine();
    addRow(qtTrId("script_filename"), filenamePop);
    addStretch();

    bind(*formatPop, defaults, keys::script_format);
    bind(*emulatorPop, defaults, keys::script_emu);
    bind(*filenamePop, defaults, keys::script_filename);
    bind(*preoptionPop, defaults, keys::script_option);
}

} // namespace tessera
