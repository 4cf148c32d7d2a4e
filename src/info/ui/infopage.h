#pragma once

#include "widgets/formpage.h"

class QComboBox;
class QLineEdit;
class QPushButton;

namespace tessera {

class DefaultsController;

/// The preferences of information sites.
class InfoPage : public FormPage
{
    Q_OBJECT

public:
    explicit InfoPage(DefaultsController& defaults, QWidget* parent = nullptr);

    QComboBox* infositePop;
    QLineEdit* hostField; ///< of the chosen site
    QLineEdit* rominfoTextField; ///< the template in use
    QLineEdit* urlTextField;
    QPushButton* openButton;
};

} // namespace tessera
