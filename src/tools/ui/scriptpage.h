#pragma once

#include "tools/ui/toolpage.h"

class QComboBox;
class QLabel;
class QPushButton;

namespace tessera {

class DefaultsController;

/// A script that starts the selected game by itself.
class ScriptPage : public ToolPage
{
    Q_OBJECT

public:
    explicit ScriptPage(DefaultsController& defaults, QWidget* parent = nullptr);

    QComboBox* formatPop;
    QComboBox* emulatorPop;
    QComboBox* filenamePop;
    QComboBox* preoptionPop;
    QLabel* scriptimageView;
    QPushButton* button_launcher; ///< at the window's foot, like the other
    QPushButton* button_make;
};

} // namespace tessera
