#pragma once

#include <QWidget>

class QPushButton;

namespace tessera {

class LogView;

/// What the emulator prints, under the commands that make it print.
class LogWindow : public QWidget
{
    Q_OBJECT

public:
    explicit LogWindow(QWidget* parent = nullptr);

    /// Over the log.
    void setCommands(QWidget* bar);

    LogView* infomationTextView;
    QPushButton* saveButton;

Q_SIGNALS:
    /// Before it is seen: what was not needed so far can be put into it.
    void aboutToShow();

protected:
    void showEvent(QShowEvent* event) override;
};

} // namespace tessera
