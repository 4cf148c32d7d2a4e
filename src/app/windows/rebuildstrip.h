#pragma once

#include <QWidget>

class QLabel;
class QProgressBar;
class QPushButton;

namespace tessera {

/// The strip over the list while a catalogue is being built: how many machines so far, and a way to cancel.
class RebuildStrip : public QWidget
{
    Q_OBJECT

public:
    explicit RebuildStrip(QWidget* parent = nullptr);

    void begin(const QString& emulator);
    void showCount(int machines);

Q_SIGNALS:
    void cancelled();

private:
    QLabel* m_text;
    QLabel* m_count;
    QProgressBar* m_progress;
    QPushButton* m_cancel;
};

} // namespace tessera
