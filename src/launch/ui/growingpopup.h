#pragma once

#include "launch/growingitems.h"

#include <QObject>
#include <QStringList>

class QComboBox;

namespace tessera {

/// Shows what a pop-up has behind its shipped items. Made before the pop-up is bound to its setting, which
/// may be a position among them.
class GrowingPopup : public QObject
{
    Q_OBJECT

public:
    GrowingPopup(QComboBox& popup, DefaultsController& defaults, const GrowingItems& items);

    /// What the emulator takes besides, behind everything else, until others are offered. What is chosen of
    /// it is kept, with those before it: that is what gives it its position for ever.
    void offer(const QStringList& titles);

private:
    void show();
    void keepChosen(int index);

    QComboBox& m_popup;
    DefaultsController& m_defaults;
    GrowingItems m_items;
    QStringList m_offered;
};

} // namespace tessera
