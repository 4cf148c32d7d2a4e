#pragma once

#include <QWidget>

class QStackedWidget;
class QTabBar;

namespace tessera {

class Toolbar;

/// The preferences of what goes with the games: pages from several rooms, one behind each segment of a strip.
class SupportPage : public QWidget
{
    Q_OBJECT

public:
    explicit SupportPage(Toolbar& toolbar, QWidget* parent = nullptr);

    void addPage(const QString& title, QWidget* page);

    QTabBar* strip;
    QStackedWidget* preferencesTab2;
};

} // namespace tessera
