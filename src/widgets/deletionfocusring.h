#pragma once

#include <QLatin1StringView>

#include <array>

class QWidget;

namespace tessera {

/// Switches the focus rings of some controls off. Decided: our own border shows the focus on them all the
/// same, since whoever uses the keyboard has to see where it is; the ring that goes is the toolkit's.
class DeletionFocusRing
{
public:
    /// Five of them are no controls of ours: what they did needs none here, or stands in a menu.
    static constexpr std::array controls{
        QLatin1StringView("titleSearchField"),  QLatin1StringView("buttonShot"),
        QLatin1StringView("setnameTextField2"), QLatin1StringView("editSetname"),
        QLatin1StringView("editParent"),        QLatin1StringView("editTitle"),
        QLatin1StringView("editTitlejp"),       QLatin1StringView("editYear"),
        QLatin1StringView("editManufacture"),   QLatin1StringView("editStatus"),
        QLatin1StringView("editRemove"),        QLatin1StringView("editAdd"),
        QLatin1StringView("editClose"),         QLatin1StringView("titleSearchField2"),
        QLatin1StringView("historyUpdate"),     QLatin1StringView("buttonexe"),
        QLatin1StringView("buttonosx"),         QLatin1StringView("buttonapp"),
        QLatin1StringView("buttonroms"),        QLatin1StringView("buttonsnap"),
        QLatin1StringView("buttontitle"),       QLatin1StringView("buttonflayer"),
        QLatin1StringView("buttonhistory"),     QLatin1StringView("buttonmameinfo"),
        QLatin1StringView("buttonviso"),        QLatin1StringView("buttonvisr"),
        QLatin1StringView("buttonvsdown"),
    };
    static_assert(controls.size() == 27);

    /// Those controls that stand in this window.
    static void awakeFromNib(QWidget& window);
    /// Of any other control.
    static void takeRing(QWidget& control);
};

} // namespace tessera
