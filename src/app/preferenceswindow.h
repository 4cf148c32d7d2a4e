#pragma once

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

    void addPage(QWidget* page, const QString& title, const QString& icon);
    void showPage(int index);
    void centre();

    QPushButton* resetButton;

private:
    QHBoxLayout* m_bar;
    QButtonGroup* m_buttons;
    QStackedWidget* m_pages;
};

} // namespace tessera
