#pragma once

#include "launch/ui/optionpage.h"

#include <functional>

class QLabel;

namespace tessera {

class PathChooser;
class PathField;
class FolderProposal;

/// Which emulator is started, and with which ROM folder.
class GeneralPage : public OptionPage
{
    Q_OBJECT

public:
    /// What `findEmulator` finds is shown as long as no emulator was chosen; it gives an empty text for none.
    GeneralPage(DefaultsController& defaults, std::function<QString()> findEmulator,
                QWidget* parent = nullptr);

    /// The emulator that launches use: the chosen one, or the found one.
    QString emulator() const;
    /// The same, but looked for once more where none was found.
    QString emulatorNow();
    /// Where none was chosen, and none was found or its file has gone: one may have been installed since.
    void lookForEmulator();
    /// Where no folder is chosen; it is never taken by itself.
    void proposeRomFolders(const QStringList& folders);

    QComboBox* launchusingPop;
    PathField* exePath;
    QLineEdit* exeTextField;
    PathField* romsPath;
    QLineEdit* romsTextField;
    QCheckBox* checkboxRompath;
    QLabel* rompathNote;
    // Once the page was shown:
    FolderProposal* romProposal = nullptr;
    PathField* osxPath = nullptr;
    QLineEdit* osxTextField = nullptr;
    PathField* appPath = nullptr;
    QLineEdit* appTextField = nullptr;

Q_SIGNALS:
    /// Another one than before, or none any more.
    void emulatorFound();

protected:
    void showEvent(QShowEvent* event) override;
    void complete(PathChooser& chooser) override;

private:
    void showFoundEmulator();
    void showNote();

    DefaultsController& m_defaults;
    std::function<QString()> m_findEmulator;
    QString m_foundEmulator;
    QStringList m_proposed;
};

} // namespace tessera
