#pragma once

#include <QPointer>
#include <QWidget>

class QComboBox;
class QProgressBar;
class QPushButton;

namespace tessera {

class DefaultsController;

/// The emulator's informational commands, over its log: one that runs, and one whose output is exported.
class CommandBar : public QWidget
{
    Q_OBJECT

public:
    explicit CommandBar(DefaultsController& defaults, QWidget* parent = nullptr);

    QComboBox* commandPop;
    QPushButton* returnButton; ///< runs the command
    QComboBox* exportPop;
    QPushButton* exportButton;
    QProgressBar* progressInd;
    QPushButton* stopButton;

    /// While a command is waited for, nothing but Stop is offered, and it has the focus.
    void setBusy(bool isBusy);

private:
    void layOut();

    QPointer<QWidget> m_focused; ///< what Stop took the focus from
};

} // namespace tessera
