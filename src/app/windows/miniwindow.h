#pragma once

#include "widgets/transparentwindow.h"

class QLabel;
class QLineEdit;
class QPushButton;
class QStandardItemModel;
class QToolButton;

namespace tessera {

class AspectView;
class DefaultsController;

/// A small launcher: a set name with suggestions, random, play. It may stay above all other windows.
class MiniWindow : public TransparentWindow
{
    Q_OBJECT

public:
    explicit MiniWindow(DefaultsController& defaults, QWidget* parent = nullptr);

    AspectView* imageView;
    QLabel* shotTextField2; ///< the kind of its picture
    QLabel* emulatorLabel;
    QLineEdit* setnameTextField2;
    QToolButton* randomButton;
    QPushButton* playButton;
    QToolButton* aboveButton; ///< above all other windows
    QToolButton* mainButton;

    /// A set and its title, as they are suggested while a name is typed.
    struct Suggestion {
        QString set;
        QString title;
    };

    void suggest(const QList<Suggestion>& suggestions);
    /// What the catalogue knows of the set in the field.
    void showTitle(const QString& title);
    /// In the title's place, until another one is shown.
    void showMessage(const QString& text) { showTitle(text); }
    /// Names the kind of emulator.
    void setEmulator(const QString& title);

Q_SIGNALS:
    void playRequested();

protected:
    /// As its own button: another window takes its place.
    void closeEvent(QCloseEvent* event) override;

private:
    QLayout* makePicture();
    QLayout* makeHead();
    QLayout* makeLauncher();

    QLabel* m_title;
    QStandardItemModel* m_suggestions;
};

} // namespace tessera
