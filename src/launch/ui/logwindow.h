#pragma once

#include <QWidget>

class QPushButton;

namespace tessera {

class LogView;

/// What the emulator prints.
class LogWindow : public QWidget
{
    Q_OBJECT

public:
    explicit LogWindow(QWidget* parent = nullptr);

    LogView* infomationTextView;
    QPushButton* saveButton;
};

} // namespace tessera
