#pragma once

#include <QPointer>
#include <QWidget>

class QLabel;
class QProgressBar;
class QPushButton;
class QStackedWidget;

namespace tessera {

/// What the tools share at the window's foot: one information line, one progress indicator, and the buttons
/// of the page that is shown.
class UtilityFoot : public QWidget
{
    Q_OBJECT

public:
    explicit UtilityFoot(QWidget* parent = nullptr);

    /// The next page's buttons; the last one is what the page is for.
    void addButtons(const QList<QPushButton*>& buttons);
    void showButtonsOf(int page);
    /// While something goes on it can be cancelled, and nothing else be begun: one button stands for the
    /// others.
    void setBusy(bool isBusy);
    void showIndicator(bool isShown);

    QLabel* infoTextField;
    QProgressBar* progressInd;
    QLabel* progressCount;
    QPushButton* button_cancel;

private:
    QStackedWidget* m_buttons;
    QPointer<QWidget> m_focused; ///< what the cancel button took the focus from
};

} // namespace tessera
