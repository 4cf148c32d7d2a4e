#include "launch/ui/generalpage.h"

#include "launch/emulatorchoice.h"
#include "launch/ui/folderproposal.h"
#include "launch/ui/pathchooser.h"
#include "launch/ui/pathrow.h"
#include "widgets/boundcontrols.h"
#include "widgets/pathfield.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

namespace tessera {

namespace {

constexpr PathRow emulatorRow{textKey("option_emulator"), "exeTextField", "buttonexe", keys::ExecutionPath,
                              &PathChooser::selectExefile};
constexpr PathRow romsRow{textKey("option_romfolder"), "romsTextField", "buttonroms", keys::RomsPath,
                          &PathChooser::selectROMfolder};
constexpr PathRow osxRow{textKey("option_osx"), "osxTextField", "buttonosx", keys::MameosxPath,
                         &PathChooser::selectOSXfile};
constexpr PathRow applicationRow{textKey("option_application"), "appTextField", "buttonapp",
                                 keys::ApplicationPath, &PathChooser::selectAppfile};

} // namespace

GeneralPage::GeneralPage(DefaultsController& defaults, EmulatorChoice& emulator, PathChooser& chooser,
                         QWidget* parent)
    : OptionPage(Page::General, defaults, chooser, parent)
    , m_defaults(defaults)
    , m_emulator(emulator)
    , m_chooser(chooser)
{
    addEmulator();
    addLine();
    addRomFolder();
    addLine();
    addOtherEmulators();
    addStretch();
    showFoundEmulator();
    showNote();
}

void GeneralPage::addEmulator()
{
    launchusingPop = makePopup("launchusingPop", launchModes);
    addRow(qtTrId("option_launchusing"), launchusingPop);
    bind(*launchusingPop, m_defaults, keys::Launchgamesusing);
    const PathField* path = addPathRow(*this, emulatorRow, m_defaults, m_chooser);
    exeTextField = path->field();
    connect(path->revealButton(), &QToolButton::clicked, &m_chooser,
            [this] { m_chooser.show_file_in_finder(PathChooser::emulatorTag); });
    connect(&m_defaults, &DefaultsController::changed, this, &GeneralPage::showFoundEmulator);
    connect(&m_emulator, &EmulatorChoice::emulatorFound, this, &GeneralPage::showFoundEmulator);
    connect(exeTextField, &QLineEdit::editingFinished, this, &GeneralPage::showFoundEmulator);
}

void GeneralPage::addRomFolder()
{
    const PathField* path = addPathRow(*this, romsRow, m_defaults, m_chooser);
    romsTextField = path->field();
    connect(path->revealButton(), &QToolButton::clicked, &m_chooser,
            [this] { m_chooser.openFolder(romsTextField->text()); });
    addRow(QString(), make(optionRow("checkboxRompath")).first());
    m_note = addNote(qtTrId("option_romfolderunused"));
    m_note->setObjectName(QStringLiteral("rompathNote"));
    romProposal = new FolderProposal("romProposal", qtTrId("roms_proposed"));
    addRow(QString(), romProposal);
    connect(romProposal, &FolderProposal::taken, &m_chooser, &PathChooser::takeROMfolder);
    connect(romsTextField, &QLineEdit::textChanged, this, &GeneralPage::showNote);
    connect(&control<QCheckBox>("checkboxRompath"), &QCheckBox::toggled, this, &GeneralPage::showNote);
}

void GeneralPage::addOtherEmulators()
{
    const std::pair<const PathRow&, int> rows[]{{osxRow, PathChooser::osxTag},
                                                {applicationRow, PathChooser::applicationTag}};
    for (const auto& [row, tag] : rows)
        connect(addPathRow(*this, row, m_defaults, m_chooser)->revealButton(), &QToolButton::clicked,
                &m_chooser, [this, tag] { m_chooser.show_file_in_finder(tag); });
}

// Shown, but not stored: it stays unchosen, and follows what is installed.
void GeneralPage::showFoundEmulator()
{
    const bool isTyping = exeTextField->hasFocus() && exeTextField->isModified();
    if (m_defaults.text(keys::ExecutionPath).isEmpty() && !isTyping)
        exeTextField->setText(m_emulator.emulator());
}

void GeneralPage::showEvent(QShowEvent* event)
{
    m_emulator.lookForEmulator();
    OptionPage::showEvent(event);
}

void GeneralPage::showNote()
{
    const bool isUsed = control<QCheckBox>("checkboxRompath").isChecked();
    m_note->setVisible(!romsTextField->text().isEmpty() && !isUsed);
    romProposal->setWanted(romsTextField->text().isEmpty());
}

} // namespace tessera
