#pragma once

#include <QWidget>

class QGridLayout;
class QPushButton;
class QSplitter;

namespace tessera {

class DefaultsController;
class FactsPanel;
class PicturePane;

/// Beside a list: the selected game's picture over what is known of it, and what can be done with it.
class SidePanel : public QWidget
{
    Q_OBJECT

public:
    /// `splitView` is the identifier of the split view between the two.
    SidePanel(DefaultsController& defaults, const QString& splitView, QWidget* parent = nullptr);

    PicturePane* picturePane;
    FactsPanel* factsPanel;
    /// Beneath the button of the page: which page that is.
    void addSites(QWidget* sites);

    QSplitter* splitView;
    QPushButton* historyButton;
    QPushButton* pageButton;
    QPushButton* verifyButton;
    QPushButton* revealButton;

private:
    QWidget* makeLower();

    QGridLayout* m_actions = nullptr;
};

} // namespace tessera
