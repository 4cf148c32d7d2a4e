#pragma once

#include <QWidget>

class QLabel;
class QProgressBar;
class QPlainTextEdit;
class QPushButton;

namespace tessera {

/// How far the download of a picture is.
class DownloadPanel : public QWidget
{
    Q_OBJECT

public:
    explicit DownloadPanel(QWidget* parent = nullptr);

    QProgressBar* progressInd2;
    QPlainTextEdit* infomationTextView;
    QPushButton* cancelButton;
    QPushButton* closeButton;
    QLabel* folderLabel; ///< where the picture goes

    /// Busy without a percentage, or from 0 to 100.
    void setIndeterminate(bool indeterminate);
    void setPercent(double percent);
    void setRunning(bool running);
};

} // namespace tessera
