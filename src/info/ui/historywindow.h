#pragma once

#include <QWidget>

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QToolButton;

namespace tessera {

class LogView;

/// What the history and info files tell about a set.
class HistoryWindow : public QWidget
{
    Q_OBJECT

public:
    explicit HistoryWindow(QWidget* parent = nullptr);

    QLineEdit* historySearchField; ///< a set name
    QLabel* parentTextField; ///< the set that is looked up for it
    QPushButton* filedButton; ///< shown where an entry stands under another name
    LogView* historyinfoTextView;
    QLineEdit* findField; ///< what to find within the text
    QLabel* findCount;
    QToolButton* smallerButton;
    QToolButton* biggerButton;
    QPushButton* historyButton; ///< chooses the file
    QPushButton* mameinfoButton;
    QCheckBox* followBox; ///< follows the selection of the lists

    void showParent(const QString& parent);
    /// The name that an entry is filed under, or nothing.
    void showFiled(const QString& name);
    /// Pixels.
    void setFontSize(int size);
    /// While there is no text yet.
    void showLoading(bool loading);
    /// Where the files are, as far as they are chosen.
    void showPaths(const QString& history, const QString& mameinfo);

private:
    QWidget* makeToolRow();
    QWidget* makeFoot();

    QLabel* m_parentName;
};

} // namespace tessera
