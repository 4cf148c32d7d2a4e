#include "catalogue/ui/rowcolors.h"

#include "catalogue/ui/appearancepage.h"
#include "core/message.h"
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
{
    // Only to be heard: the colouring itself follows the setting.
    connect(page.coloringBox, &QCheckBox::clicked, this,
            [this] { m_desktop.playSound(QStringLiteral("Pop")); });
    join(keys::TableViewTextColor, textKey("appearance_color"), page.textColorWell, page.initialColorButton);
    join(keys::TableViewTextColor2, textKey("appearance_color2"), page.textColorWell2,
         page.initialColorButton2);
}

void RowColors::join(const Key<QLatin1StringView>& key, const char* title, ColorWell* well,
                     QToolButton* initial)
{
    connect(well, &ColorWell::clicked, this, [this, &key, title, well] {
        if (const auto color = m_desktop.colorPanel({qtTrId(title), well->color().name(QColor::HexArgb)}))
            m_defaults.setText(key, *color);
    });
    connect(initial, &QToolButton::clicked, this, [this, &key] { m_defaults.setText(key, key.initial); });
}

} // namespace tessera
