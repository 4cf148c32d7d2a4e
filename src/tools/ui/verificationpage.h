#pragma once

#include "tools/ui/toolpage.h"
#include "tools/verification.h"

class QCheckBox;
class QLineEdit;
class QPushButton;
class QToolButton;

namespace tessera {

class DefaultsController;

/// What of an emulator's words about its ROMs goes into a report.
class VerificationPage : public ToolPage
{
    Q_OBJECT

public:
    explicit VerificationPage(DefaultsController& defaults, QWidget* parent = nullptr);

    ChosenVerdicts chosen() const;

    QLineEdit* verifyromsTextField;
    QPushButton* button_verifyroms;
    QToolButton* reveal_verifyroms;
    std::array<QCheckBox*, verdicts.size()> boxes; ///< in the verdicts' order
    QPushButton* button_convert2; ///< at the window's foot

private:
    QWidget* makeBoxes(DefaultsController& defaults);
};

} // namespace tessera
