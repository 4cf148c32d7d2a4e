#pragma once

#include "platform/desktop.h"

#include <QDialog>

namespace tessera {

/// A modal question: its message, what explains it, and the buttons, the acting one last and accented.
class AlertDialog : public QDialog
{
    Q_OBJECT

public:
    AlertDialog(const Alert& alert, QWidget* parent);

    /// The index of the pressed button; Escape's for a closed window.
    int run();

private:
    int m_pressed;
};

} // namespace tessera
