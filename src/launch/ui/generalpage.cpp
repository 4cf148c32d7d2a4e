#include "launch/ui/generalpage.h"

#include "launch/ui/pathchooser.h"
#include "launch/ui/folderproposal.h"
#include "widgets/boundcontrols.h"
#include "widgets/pathfield.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>

namespace tessera {

namespace {

PathField* makePath(const char* nameKey, const char* fieldName, const char* buttonName, QWidget* parent)
{
    auto* path = new PathField(qtTrId(nameKey), qtTrId("path_choose"), qtTrId("path_reveal"), parent);
    path->field()->setObjectName(QString::fromLatin1(fieldName));
    path->chooseButton()->setObjectName(QString::fromLatin1(buttonName));
    return path;
}

} // namespace

GeneralPage::GeneralPage(DefaultsController& defaults, std::function<QString()> findEmulator, QWidget* parent)
    : OptionPage(QStringLiteral("general"), parent)
    , launchusingPop(makePopup("launchusingPop", launchModes))
    , exePath(makePath(textKey("option_emulator"), "exeTextField", "buttonexe", this))
    , exeTextField(exePath->field())
    , romsPath(makePath(textKey("option_romfolder"), "romsTextField", "buttonroms", this))
    , romsTextField(romsPath->field())
    , checkboxRompath(makeBox("checkboxRompath", textKey("option_useromfolder")))
    , m_defaults(defaults)
    , m_findEmulator(std::move(findEmulator))
{
    addRow(qtTrId("option_launchusing"), launchusingPop);
    addRow(qtTrId("option_emulator"), exePath);
    addLine();
    addRow(qtTrId("option_romfolder"), romsPath);
    addRow(QString(), checkboxRompath);
    rompathNote = addNote(qtTrId("option_romfolderunused"));
    rompathNote->setObjectName(QStringLiteral("rompathNote"));

    bind(*launchusingPop, defaults, keys::Launchgamesusing);
    bind(*exeTextField, defaults, keys::ExecutionPath);
    bind(*romsTextField, defaults, keys::RomsPath);
    // Outputserror says nothing of ROMs, but it is the boolean key (besides gamelist_coloring) that nothing
    // else takes.
    bind(*checkboxRompath, defaults, keys::Outputserror);

    connect(&defaults, &DefaultsController::changed, this, &GeneralPage::lookForEmulator);
    connect(&defaults, &DefaultsController::changed, this, &GeneralPage::showFoundEmulator);
    connect(exeTextField, &QLineEdit::editingFinished, this, &GeneralPage::showFoundEmulator);
    connect(romsTextField, &QLineEdit::textChanged, this, &GeneralPage::showNote);
    connect(checkboxRompath, &QCheckBox::toggled, this, &GeneralPage::showNote);
    lookForEmulator();
    showNote();
}

void GeneralPage::complete(PathChooser& chooser)
{
    romProposal = new FolderProposal("romProposal", qtTrId("roms_proposed"));
    addRow(QString(), romProposal);
    romProposal->setFolders(m_proposed);
    connect(romProposal, &FolderProposal::taken, &chooser, &PathChooser::takeROMfolder);
    showNote();
    addLine();
    osxPath = makePath(textKey("option_osx"), "osxTextField", "buttonosx", this);
    osxTextField = osxPath->field();
    addRow(qtTrId("option_osx"), osxPath);
    appPath = makePath(textKey("option_application"), "appTextField", "buttonapp", this);
    appTextField = appPath->field();
    addRow(qtTrId("option_application"), appPath);
    addStretch();
    bind(*osxTextField, m_defaults, keys::MameosxPath);
    bind(*appTextField, m_defaults, keys::ApplicationPath);

    connect(exePath->chooseButton(), &QPushButton::clicked, &chooser, &PathChooser::selectExefile);
    connect(osxPath->chooseButton(), &QPushButton::clicked, &chooser, &PathChooser::selectOSXfile);
    connect(appPath->chooseButton(), &QPushButton::clicked, &chooser, &PathChooser::selectAppfile);
    connect(romsPath->chooseButton(), &QPushButton::clicked, &chooser, &PathChooser::selectROMfolder);
    connect(romsPath->revealButton(), &QToolButton::clicked, &chooser, &PathChooser::openROMfolder);
    int tag = 0;
    for (const PathField* path : {exePath, osxPath, appPath}) {
        connect(path->revealButton(), &QToolButton::clicked, &chooser,
                [&chooser, tag] { chooser.show_file_in_finder(tag); });
        ++tag;
    }
}

QString GeneralPage::emulator() const
{
    const QString chosen = m_defaults.text(keys::ExecutionPath);
    return chosen.isEmpty() ? m_foundEmulator : chosen;
}

QString GeneralPage::emulatorNow()
{
    lookForEmulator();
    return emulator();
}

void GeneralPage::lookForEmulator()
{
    if (QFileInfo::exists(m_foundEmulator) || !m_defaults.text(keys::ExecutionPath).isEmpty())
        return;
    const QString found = m_findEmulator();
    if (found == m_foundEmulator)
        return;
    m_foundEmulator = found;
    showFoundEmulator();
    Q_EMIT emulatorFound();
}

// Shown, but not stored: it stays unchosen, and follows what is installed.
void GeneralPage::showFoundEmulator()
{
    const bool isTyping = exeTextField->hasFocus() && exeTextField->isModified();
    if (m_defaults.text(keys::ExecutionPath).isEmpty() && !isTyping)
        exeTextField->setText(m_foundEmulator);
}

void GeneralPage::showEvent(QShowEvent* event)
{
    lookForEmulator();
    OptionPage::showEvent(event);
}

void GeneralPage::proposeRomFolders(const QStringList& folders)
{
    m_proposed = folders;
    if (romProposal != nullptr)
        romProposal->setFolders(folders);
}

void GeneralPage::showNote()
{
    rompathNote->setVisible(!romsTextField->text().isEmpty() && !checkboxRompath->isChecked());
    if (romProposal != nullptr)
        romProposal->setWanted(romsTextField->text().isEmpty());
}

} // namespace tessera
