#include "launch/ui/generalpage.h"

#include "launch/ui/pathchooser.h"
#include "widgets/boundcontrols.h"
#include "widgets/pathfield.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>

namespace tessera {

namespace {

PathField* makePath(const char* nameKey, const char* fieldName, QWidget* parent)
{
    auto* path = new PathField(qtTrId(nameKey), qtTrId("path_choose"), qtTrId("path_reveal"), parent);
    path->field()->setObjectName(QString::fromLatin1(fieldName));
    path->revealButton()->hide();
    return path;
}

} // namespace

GeneralPage::GeneralPage(DefaultsController& defaults, const QString& foundEmulator, QWidget* parent)
    : OptionPage(textKey("page_general"), QStringLiteral("general"), parent)
    , launchusingPop(makePopup("launchusingPop", launchModes))
    , exePath(makePath(textKey("option_emulator"), "exeTextField", this))
    , exeTextField(exePath->field())
    , romsPath(makePath(textKey("option_romfolder"), "romsTextField", this))
    , romsTextField(romsPath->field())
    , checkboxRompath(makeBox("checkboxRompath", textKey("option_useromfolder")))
    , m_defaults(defaults)
    , m_foundEmulator(foundEmulator)
{
    addRow(qtTrId("option_launchusing"), launchusingPop);
    addRow(qtTrId("option_emulator"), exePath);
    addLine();
    addRow(qtTrId("option_romfolder"), romsPath);
    addRow(QString(), checkboxRompath);
    rompathNote = addNote(qtTrId("option_romfolderunused"));
    rompathNote->setObjectName(QStringLiteral("rompathNote"));
    addStretch();

    bind(*launchusingPop, defaults, keys::Launchgamesusing);
    bind(*exeTextField, defaults, keys::ExecutionPath);
    bind(*romsTextField, defaults, keys::RomsPath);
    // Outputserror says nothing of ROMs, but it is the boolean key (besides gamelist_coloring) that nothing
    // else takes.
    bind(*checkboxRompath, defaults, keys::Outputserror);

    connect(&defaults, &DefaultsController::changed, this, &GeneralPage::showFoundEmulator);
    connect(exeTextField, &QLineEdit::editingFinished, this, &GeneralPage::showFoundEmulator);
    connect(romsTextField, &QLineEdit::textChanged, this, &GeneralPage::showNote);
    connect(checkboxRompath, &QCheckBox::toggled, this, &GeneralPage::showNote);
    showFoundEmulator();
    showNote();
}

void GeneralPage::setChooser(PathChooser& chooser)
{
    connect(exePath->chooseButton(), &QPushButton::clicked, &chooser, &PathChooser::selectExefile);
    connect(romsPath->chooseButton(), &QPushButton::clicked, &chooser, &PathChooser::selectROMfolder);
}

// Shown, but not stored: it stays unchosen, and follows what is installed.
void GeneralPage::showFoundEmulator()
{
    const bool isTyping = exeTextField->hasFocus() && exeTextField->isModified();
    if (m_defaults.text(keys::ExecutionPath).isEmpty() && !isTyping)
        exeTextField->setText(m_foundEmulator);
}

void GeneralPage::showNote()
{
    rompathNote->setVisible(!romsTextField->text().isEmpty() && !checkboxRompath->isChecked());
}

} // namespace tessera
