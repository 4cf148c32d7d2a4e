#pragma once

#include "launch/launchoptions.h"

namespace tessera {

class DefaultsController;

/// The BIOS pop-up of the launch options as its setting has it, whether it is shown anywhere or not.
class BiosPopup
{
public:
    explicit BiosPopup(DefaultsController& defaults)
        : m_defaults(defaults)
    {
    }

    /// Position 0 has no title: it stands for the emulator's own choice.
    PopupState selected() const;
    /// What it shows.
    QString text() const;
    /// The position is stored; a title that it does not have leaves it as it is. A blank stands for 0.
    void select(const QString& title);
    /// What it lacks goes behind its items.
    void learn(const QStringList& titles);
    static bool isChangedBy(const QString& setting);

private:
    DefaultsController& m_defaults;
};

} // namespace tessera
