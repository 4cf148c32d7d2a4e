#pragma once

#include "tools/ui/toolpage.h"

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace tessera {

class DefaultsController;

/// The utility window's first page: what a catalogue is made of.
class ConversionPage : public ToolPage
{
    Q_OBJECT

public:
    explicit ConversionPage(DefaultsController& defaults, QWidget* parent = nullptr);

    /// Offers the file that was saved; nothing for an empty path.
    void showSaved(const QString& path);
    /// The offered file is the catalogue now; what differs from the old one.
    void showUsed(const QString& changes);

    QLineEdit* listxmlTextField;
    QLineEdit* mame32jpTextField;
    QCheckBox* button_isbios;
    QCheckBox* button_ismechanical;
    QCheckBox* button_isdevice;
    QLabel* savedText;
    QPushButton* button_useNow;
    QPushButton* button_changes;
    QPushButton* button_convert; ///< at the window's foot
};

} // namespace tessera
