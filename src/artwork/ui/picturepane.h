#pragma once

#include <QWidget>

class QComboBox;
class QLabel;
class QToolButton;

namespace tessera {

class AspectView;
class DefaultsController;

/// A game's picture over a row with its kind and its ratio.
class PicturePane : public QWidget
{
    Q_OBJECT

public:
    explicit PicturePane(DefaultsController& defaults, QWidget* parent = nullptr);

    AspectView* imageView;
    QLabel* shotTextField; ///< the kind
    QToolButton* buttonShot; ///< the next kind; its menu has them all
    QComboBox* aspectPop;
};

} // namespace tessera
