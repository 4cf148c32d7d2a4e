#pragma once

#include "launch/emulatorfinder.h"

#include <QObject>

#include <functional>

namespace tessera {

class DefaultsController;

/// Which emulator is started, and how, as the settings have it.
class EmulatorChoice : public QObject
{
    Q_OBJECT

public:
    /// The launch modes by their positions.
    enum Mode { None = -1, CommandLineMame, MameOsx, OtherApplication };

    /// What `find` finds is used as long as no emulator was chosen; it gives an empty text for none.
    explicit EmulatorChoice(
        DefaultsController& defaults, std::function<QString()> find = [] { return findEmulator(); });

    /// The chosen one, or the one that was found.
    QString emulator() const;
    /// The same, but looked for once more where none was found.
    QString emulatorNow();
    /// The same; false where nothing exists at its path.
    bool findsEmulator();
    /// Where none was chosen, and none was found or its file has gone: one may have been installed since.
    void lookForEmulator();

    Mode mode() const;
    /// As the pop-up shows it; empty where the setting is none of its positions.
    QString modeTitle() const;
    /// By its title.
    void setMode(const QString& title);

Q_SIGNALS:
    /// Another one than before, or none any more.
    void emulatorFound();
    /// It is stored already. Not told where all settings go back: whoever puts them back says so.
    void modeChanged();

private:
    void settingChanged(const QString& name);

    DefaultsController& m_defaults;
    std::function<QString()> m_find;
    QString m_found;
};

} // namespace tessera
