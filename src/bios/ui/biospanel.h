#pragma once

#include <QWidget>

class QLabel;
class QPushButton;
class QToolButton;
class QTreeView;

namespace tessera {

class BiosModel;

/// The known BIOS as a tree; a double click makes one the setting for launches.
class BiosPanel : public QWidget
{
    Q_OBJECT

public:
    explicit BiosPanel(QWidget* parent = nullptr);

    BiosModel* treeController_list;
    QTreeView* biosView;
    QLabel* image_icon; ///< of the selected entry's archive
    QLabel* text_infomation;
    QLabel* text_setting; ///< which BIOS is set now
    QToolButton* addButton;
    QToolButton* removeButton;
    QPushButton* gameButton; ///< the BIOS of the selected game
    QPushButton* rebuildButton;

    /// Every entry is shown, the first one in view.
    void expandAll();
    /// While an emulator is asked nothing is added, removed or typed.
    void setAsking(bool asking);
    /// The title of the pop-up's selected item.
    void showSetting(const QString& title);

protected:
    void showEvent(QShowEvent* event) override;

private:
    QWidget* makeToolRow();
    QWidget* makeFoot();
};

} // namespace tessera
