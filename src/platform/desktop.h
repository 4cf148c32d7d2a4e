#pragma once

#include <QDateTime>
#include <QString>
#include <QStringList>
#include <QUrl>

#include <functional>
#include <optional>
#include <vector>

namespace tessera {

/// A modal question. The first button is the default one and acts; Escape presses the last one, or the one
/// named.
struct Alert {
    enum class Style { Informational, Warning };

    QString message;
    QString informative;
    QStringList buttons;
    Style style = Style::Informational;
    std::optional<int> escape = std::nullopt;
};

/// What a modal open panel lets the user choose: exactly one item.
struct OpenRequest {
    bool files = true;
    bool folders = false;
    QUrl directory = {}; ///< starting place; invalid for none, and none where it does not exist
    QStringList extensions = {}; ///< without dots; empty for any file
    QString title = {};
    /// The extensions of the kind that is wanted: offered as a filter, while every file is shown at first.
    QStringList kind = {};
    bool applications = false; ///< a folder that is an application bundle can be chosen like a file
};

/// A modal save panel; it asks itself before an existing file is replaced.
struct SaveRequest {
    QString title;
    QString name; ///< proposed file name
    QStringList extensions; ///< without dots; the first is added to a name that has none of them
};

/// What a modal colour panel begins with. Colours are texts with their transparency: "#AARRGGBB".
struct ColorRequest {
    QString title;
    QString color;
};

/// A way out that an error panel offers besides its dismissal.
struct Recovery {
    QString title;
    std::function<bool()> attempt; ///< true when the error is dealt with
};

/// Everything that a person sees or hears outside our own windows. Alerts and panels are modal and answer in
/// place. Paths are absolute.
class Desktop
{
public:
    virtual ~Desktop() = default;

    virtual void beep() = 0;
    /// A sound of resources/sounds, without extension: "st_ovenbell".
    virtual void playSound(const QString& name) = 0;
    /// The index of the pressed button.
    virtual int runAlert(const Alert& alert) = 0;
    virtual std::optional<QString> openPanel(const OpenRequest& request) = 0;
    virtual std::optional<QString> savePanel(const SaveRequest& request) = 0;
    virtual std::optional<QString> colorPanel(const ColorRequest& request) = 0;
    /// Shows an error, what explains it, and its recoveries. True when a recovery was chosen and dealt with
    /// it.
    virtual bool presentError(const QString& message, const QString& informative,
                              const std::vector<Recovery>& recoveries)
        = 0;
    /// Shows the item selected in the file manager; false where that was not possible.
    virtual bool reveal(const QString& path) = 0;
    /// Opens a folder in the file manager; false where that was not possible.
    virtual bool openFolder(const QString& path) = 0;
    /// Opens a file with a program, an executable or a desktop entry, which goes on by itself; false where it
    /// could not be started.
    virtual bool openWith(const QString& path, const QString& application) = 0;
    /// Opens a web page in the user's browser; false where that was not possible.
    virtual bool openUrl(const QUrl& url) = 0;
    /// Asks the windows of a process, of its process group and of those that it started to close, as their
    /// own button would; false where there is none that can be asked.
    virtual bool askToClose(qint64 process) = 0;
    virtual void noteRecent(const QString& path) = 0;
    /// A line in the system log.
    virtual void log(const QString& line) = 0;
    virtual QDateTime now() const = 0;
};

} // namespace tessera
