#pragma once

#include "tools/ui/toolpage.h"

class QCheckBox;
class QLineEdit;
class QPushButton;
class QToolButton;

namespace tessera {

class DefaultsController;

/// The utility window's first page: what a catalogue is made of.
class ConversionPage : public ToolPage
{
    Q_OBJECT

public:
    explicit ConversionPage(DefaultsController& defaults, QWidget* parent = nullptr);

    QLineEdit* listxmlTextField;
    QLineEdit* mame32jpTextField;
    QPushButton* button_listxml;
    QPushButton* button_mame32jp;
    QToolButton* reveal_listxml;
    QToolButton* reveal_mame32jp;
    QCheckBox* button_isbios;
    QCheckBox* button_ismechanical;
    QCheckBox* button_isdevice;
    QPushButton* button_convert; ///< at the window's foot

private:
    QCheckBox* makeBox(const QString& label, const QString& name);
};

} // namespace tessera
