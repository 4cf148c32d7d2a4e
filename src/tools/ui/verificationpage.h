#pragma once

#include "tools/ui/toolpage.h"
#include "tools/verification.h"
#include "tools/verifiedsets.h"

class QCheckBox;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;

namespace tessera {

class DefaultsController;
class RowsList;
class RowsModel;

/// What of an emulator's words about its ROMs goes into a report.
class VerificationPage : public ToolPage
{
    Q_OBJECT

public:
    explicit VerificationPage(DefaultsController& defaults, QWidget* parent = nullptr);

    ChosenVerdicts chosen() const;
    /// The sets of a text; the list is for looking, not for the report.
    void showSets(std::vector<VerifiedSet> sets);

    QLineEdit* verifyromsTextField;
    std::array<QCheckBox*, verdicts.size()> boxes; ///< in the verdicts' order
    RowsModel* rows;
    RowsList* setList;
    QPlainTextEdit* setDetails; ///< of the selected set, what is wrong and where it belongs
    QPushButton* button_ask3; ///< at the window's foot, like the next one
    QPushButton* button_convert2;

private:
    QWidget* makeBoxes(DefaultsController& defaults);
    QWidget* makeSets();
    void showDetails();

    std::vector<VerifiedSet> m_sets;
};

} // namespace tessera
