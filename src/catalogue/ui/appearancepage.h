#pragma once

#include "catalogue/colortransformer.h"
#include "widgets/formpage.h"

class QCheckBox;
class QLineEdit;
class QPushButton;
class QToolButton;

namespace tessera {

class ColorWell;
class DefaultsController;

/// How the lists look: the fonts of their rows and their colours.
class AppearancePage : public FormPage
{
    Q_OBJECT

public:
    explicit AppearancePage(DefaultsController& defaults, QWidget* parent = nullptr);

    QLineEdit* fontSampleField; ///< the font's name in that font
    QPushButton* fontButton;
    QLineEdit* favoriteFontField; ///< the same of the favourites' list
    QPushButton* favoriteFontButton;
    QLineEdit* fontSizeField;
    QToolButton* smallerButton;
    QToolButton* biggerButton;
    QCheckBox* coloringBox;
    ColorWell* textColorWell;
    QToolButton* initialColorButton;
    ColorWell* textColorWell2;
    QToolButton* initialColorButton2;

private:
    void layOut();
    void bindControls(DefaultsController& defaults);
    QToolButton* makeButton(const char* icon, const QString& name, const char* objectName);
    ColorWell* makeWell(const QString& name, const char* objectName);
    void showFonts();
    void showColors();

    DefaultsController& m_defaults;
    ColorTransformer m_colors;
};

} // namespace tessera
