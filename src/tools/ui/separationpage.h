#pragma once

#include "tools/ui/toolpage.h"

class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;

namespace tessera {

class DefaultsController;
class RowsList;
class RowsModel;
struct SeparationPlan;

/// What is in a ROM folder, and what of it an emulator no longer lists.
class SeparationPage : public ToolPage
{
    Q_OBJECT

public:
    explicit SeparationPage(DefaultsController& defaults, QWidget* parent = nullptr);

    /// What a separation would do; nothing without a list.
    void showPlan(const SeparationPlan& plan);
    void hidePlan();
    /// What was not copied, and why; a sentence each.
    void showFailures(const QStringList& failures);

    QLineEdit* rompathTextField1;
    QLineEdit* listfullTextField1;
    QLineEdit* movepathTextField;
    QPushButton* button_check1; ///< at the window's foot, like the next one
    QPushButton* button_separete;
    RowsModel* rows;
    RowsList* separationList;
    QLabel* planText;
    QPlainTextEdit* failedCopies;
};

} // namespace tessera
