#pragma once

#include "launch/ui/optionpage.h"

class QLabel;

namespace tessera {

class PathChooser;
class PathField;

/// Which emulator is started, and with which ROM folder.
class GeneralPage : public OptionPage
{
    Q_OBJECT

public:
    /// `foundEmulator` is shown as long as no emulator was chosen; empty where none was found.
    GeneralPage(DefaultsController& defaults, const QString& foundEmulator, QWidget* parent = nullptr);

    /// The buttons beside the paths run the chooser's commands.
    void setChooser(PathChooser& chooser);

    QComboBox* launchusingPop;
    PathField* exePath;
    QLineEdit* exeTextField;
    PathField* romsPath;
    QLineEdit* romsTextField;
    QCheckBox* checkboxRompath;
    QLabel* rompathNote;

private:
    void showFoundEmulator();
    void showNote();

    DefaultsController& m_defaults;
    QString m_foundEmulator;
};

} // namespace tessera
