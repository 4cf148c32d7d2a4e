#pragma once

#include <QWidget>

class QComboBox;
class QMenuBar;
class QTabWidget;
class QTextBrowser;

namespace tessera {

class DefaultsController;

/// The guide, page by page, the terms of a search, and every key of the menus.
class HelpWindow : public QWidget
{
    Q_OBJECT

public:
    /// The keys are those of `menus`.
    HelpWindow(DefaultsController& defaults, const QMenuBar& menus, QWidget* parent = nullptr);

    QComboBox* helpPopmenu;
    QTabWidget* helpTabview;

private:
    QWidget* makeGuide(DefaultsController& defaults);
    QTextBrowser* makePage(const char* objectName, const QString& name);
    void showGuide(int page);

    QTextBrowser* m_guide;
};

} // namespace tessera
