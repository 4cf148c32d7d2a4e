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

    QPushButton* resetButton;

protected:
    void showEvent(QShowEvent* event) override;

private:
    QHBoxLayout* m_bar;
    QButtonGroup* m_buttons;
    QStackedWidget* m_pages;
    QList<QPointer<QWidget>> m_waiting;
};

} // namespace tessera
