#pragma once

#include <QPointer>
#include <QWidget>

class QHBoxLayout;
class QButtonGroup;
class QPushButton;
class QStackedWidget;

namespace tessera {

/// The preferences: a row of page buttons over the page, and at the foot the way back to the initial values.
class PreferencesWindow : public QWidget
{
    Q_OBJECT

public:
    explicit PreferencesWindow(QWidget* parent = nullptr);
    ~PreferencesWindow() override;

    /// The page is the window's from now on, but is put into it when the window is first shown: a start of
    /// the program lays nothing out here.
    void addPage(QWidget* page, const QString& title, const QString& icon);
    void showPage(int index);
    void centre();

    /// Beside the way back, at the foot.
    void setFoot(QWidget* foot);

    QPushButton* resetButton;

Q_SIGNALS:
    /// Before it is seen: what was not needed so far can be put into it.
    void aboutToShow();

protected:
    void showEvent(QShowEvent* event) override;

private:
    QHBoxLayout* m_bar;
    QHBoxLayout* m_foot;
    QButtonGroup* m_buttons;
    QStackedWidget* m_pages;
    QList<QPointer<QWidget>> m_waiting;
};

} // namespace tessera
