#pragma once

#include <QObject>

namespace tessera {

class AspectChoice;
class DefaultsController;
class Desktop;
class LaunchController;
class LogView;
class MainWindow;

/// Puts all settings back to their initial values.
class SettingsReset : public QObject
{
    Q_OBJECT

public:
    struct Parts {
        Desktop& desktop;
        DefaultsController& defaults;
        MainWindow& window;
        LogView& log;
        LaunchController& launches;
        AspectChoice& aspect;
    };
    explicit SettingsReset(const Parts& parts, QObject* parent = nullptr);

    /// Asks first.
    void resetSettings();
    void DefaultAction();

Q_SIGNALS:
    /// So that other controllers can reset their own state.
    void defaultAction();

private:
    Parts m_parts;
};

} // namespace tessera
