#pragma once

#include "tools/ui/toolpage.h"

class QLabel;
class QLineEdit;
class QPushButton;

namespace tessera {

class DefaultsController;

/// Where the favourites of an older form are, and what of the catalogue they are looked up in.
class FavouritesPage : public ToolPage
{
    Q_OBJECT

public:
    explicit FavouritesPage(DefaultsController& defaults, QWidget* parent = nullptr);

    /// How many records the game list does not show; without any nothing is said.
    void showHidden(std::size_t records);
    /// What is worth knowing about the last conversion; empty for nothing.
    void showResult(const QString& text);

    QLineEdit* favoritesTextField;
    QLabel* hiddenText;
    QPushButton* button_showAll;
    QLabel* resultText;
    QPushButton* button_convert3; ///< at the window's foot

private:
    QWidget* m_hidden;
};

} // namespace tessera
