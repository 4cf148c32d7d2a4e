#pragma once

#include "tools/ui/toolpage.h"

class QLineEdit;
class QPushButton;

namespace tessera {

class DefaultsController;
class FoundBar;
class RowsList;
class RowsModel;

/// Which of the sets that an emulator lists are in the ROM folder.
class ExistencePage : public ToolPage
{
    Q_OBJECT

public:
    explicit ExistencePage(DefaultsController& defaults, QWidget* parent = nullptr);

    QLineEdit* listfullTextField2;
    QLineEdit* rompathTextField2;
    QPushButton* button_csv;
    QPushButton* button_save; ///< at the window's foot, like the next two
    QPushButton* button_ask2;
    QPushButton* button_check2;
    QLineEdit* filterField;
    FoundBar* foundBar;
    RowsModel* rows;
    RowsList* reportList;
};

} // namespace tessera
