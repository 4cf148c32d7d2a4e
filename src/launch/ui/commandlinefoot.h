#pragma once

#include "launch/commandline.h"

#include <QWidget>

class QPushButton;
class QTextEdit;

namespace tessera {

/// The command line that a launch would use now, to be read and copied; what the emulator would not
/// understand is struck through.
class CommandLineFoot : public QWidget
{
    Q_OBJECT

public:
    explicit CommandLineFoot(QWidget* parent = nullptr);

    void showLine(const QString& executable, const CommandLine& line);
    /// What is started, as a shell would take it.
    QString text() const { return m_text; }

    QTextEdit* commandLineText;
    QPushButton* copyButton;

protected:
    void showEvent(QShowEvent* event) override;

private:
    void copy();
    void showWholeLines();

    QString m_text;
};

} // namespace tessera
