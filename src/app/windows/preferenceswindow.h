#pragma once

#include <QPointer>
#include <QWidget>

class QHBoxLayout;
class QPushButton;
class QStackedWidget;

namespace tessera {

class SupportPage;
class Toolbar;

/// The preferences: the toolbar over the page that it selects, and at the foot the way back to the initial
/// values.
class PreferencesWindow : public QWidget
{
    Q_OBJECT

public:
    explicit PreferencesWindow(QWidget* parent = nullptr);
    ~PreferencesWindow() override;

    /// The page of this item of the toolbar. It is the window's from now on, but is put into it when the
    /// window is first shown: a start of the program lays nothing out here.
    void addPage(const QString& identifier, QWidget* page);
    /// Makes the page that several rooms fill; see aboutToShow().
    SupportPage& supportPage();
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
    void takePages();

    struct Waiting {
        QString identifier;
        QPointer<QWidget> page;
    };
    QHBoxLayout* m_foot;
    QStackedWidget* m_preferencesTab;
    Toolbar* m_toolbar;
    QPointer<SupportPage> m_support;
    QList<Waiting> m_waiting;
    bool m_isComplete = false;
};

} // namespace tessera
