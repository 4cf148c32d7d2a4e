#pragma once

#include "launch/ui/optionpage.h"

class QLabel;
class QLineEdit;

namespace tessera {

class EmulatorChoice;
class FolderProposal;

/// Which emulator is started, and with which ROM folder.
class GeneralPage : public OptionPage
{
    Q_OBJECT

public:
    GeneralPage(DefaultsController& defaults, EmulatorChoice& emulator, PathChooser& chooser,
                QWidget* parent = nullptr);

    QComboBox* launchusingPop;
    QLineEdit* exeTextField;
    QLineEdit* romsTextField;
    FolderProposal* romProposal; ///< while no folder is chosen; none is ever taken by itself

protected:
    void showEvent(QShowEvent* event) override;

private:
    void addEmulator();
    void addRomFolder();
    void addOtherEmulators();
    void showFoundEmulator();
    void showNote();

    DefaultsController& m_defaults;
    EmulatorChoice& m_emulator;
    PathChooser& m_chooser;
    QLabel* m_note;
};

} // namespace tessera
