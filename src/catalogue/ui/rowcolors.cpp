#include "catalogue/ui/rowcolors.h"

#include "catalogue/ui/appearancepage.h"
#include "platform/defaultscontroller.h"
#include "platform/desktop.h"
#include "widgets/colorwell.h"

#include <QCheckBox>
#include <QToolButton>

namespace tessera {

RowColors::RowColors(Desktop& desktop, DefaultsController& defaults, AppearancePage& page, QObject* parent)
    : QObject(parent)
    , m_desktop(desktop)
    , m_defaults(defaults)
    , m_page(page)
{
    connect(page.coloringBox, &QCheckBox::clicked, this, &RowColors::coloringAction);
    connect(page.textColorWell, &ColorWell::clicked, this, &RowColors::chooseTextColor);
    connect(page.textColorWell2, &ColorWell::clicked, this, &RowColors::chooseTextColor2);
    connect(page.initialColorButton, &QToolButton::clicked, this, &RowColors::restoreTextColor);
    connect(page.initialColorButton2, &QToolButton::clicked, this, &RowColors::restoreTextColor2);
}

void RowColors::coloringAction()
{
    m_desktop.playSound(QStringLiteral("Pop"));
}

void RowColors::chooseTextColor()
{
    choose(keys::TableViewTextColor, qtTrId("appearance_color"), m_page.textColorWell->color());
}

void RowColors::chooseTextColor2()
{
    choose(keys::TableViewTextColor2, qtTrId("appearance_color2"), m_page.textColorWell2->color());
}

void RowColors::restoreTextColor()
{
    restore(keys::TableViewTextColor);
}

void RowColors::restoreTextColor2()
{
    restore(keys::TableViewTextColor2);
}

void RowColors::choose(const Key<QLatin1StringView>& key, const QString& title, const QColor& shown)
{
    if (const auto color = m_desktop.colorPanel({title, shown.name(QColor::HexArgb)}))
        m_defaults.setText(key, *color);
}

void RowColors::restore(const Key<QLatin1StringView>& key)
{
    m_defaults.setText(key, key.initial);
}

} // namespace tessera
