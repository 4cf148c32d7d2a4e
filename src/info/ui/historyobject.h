#pragma once

#include "core/settingskeys.h"
#include "info/historytext.h"
#include "info/ui/entryfinder.h"

#include <QObject>
#include <QThreadPool>

#include <memory>

class QTimer;

namespace tessera {

class DefaultsController;
class Desktop;
class HistoryWindow;

/// Holds the history and the info file and shows what they tell. The files are read and decoded beside the
/// windows; a search that comes meanwhile waits for them.
class HistoryObject : public QObject
{
    Q_OBJECT

public:
    HistoryObject(Desktop& desktop, DefaultsController& defaults, HistoryWindow& window,
                  QObject* parent = nullptr);

    /// Reads both files for the first time.
    void awakeFromNib();
    bool isLoading() const { return m_history.isLoading || m_info.isLoading; }
    /// Absent until loaded.
    const InfoFile* str_hist() const { return m_history.file.get(); }
    const InfoFile* str_info() const { return m_info.file.get(); }
    /// The text being shown, as it is in the files; messages about missing ones are appended to it.
    const QString& mstr_Mameinfo() const { return m_text; }

    /// As searchHistoryInfo(), without its sound, and only once nothing else has been asked for a moment.
    void followTo(const QString& name, const QString& key);

public Q_SLOTS:
    /// (Re)loads the file at the path of the setting.
    void set_histryString();
    void set_infoString();
    /// Shows what is known of a set.
    void searchHistoryInfo(const QString& name);
    /// Shows what is known of the set in the search field.
    void searchAction();
    /// Shows also what is filed under another name.
    void showFiled();
    void makeTextBigger();
    void makeTextSmaller();

private:
    /// The setting and the messages of one of the two files.
    struct Kind {
        const ChosenKey& key;
        QLatin1StringView missing;
        QLatin1StringView failed;
    };
    struct Loaded {
        Kind kind;
        std::unique_ptr<const InfoFile> file;
        QString path{}; ///< of the file that is being read, or was read last
        bool isLoading = false;
        int load = 0; ///< counts the loads: the result of an earlier one is dropped
    };
    struct Wanted {
        QString name;
        FiledEntries filed = FiledEntries::LeaveOut;
        bool withSound = true;
    };

    void load(Loaded& which);
    void takeFile(Loaded& which, int load, const std::shared_ptr<std::expected<InfoFile, Failure>>& read);
    void search(const Wanted& wanted);
    void showFound(const Wanted& wanted);
    /// Shows the text and keeps it, so that a message about a missing file can be appended to it.
    void showText(const QString& text);
    void show(const QString& text);
    /// Loads the file whose path was typed. While the path leads to no file, what was read before stays.
    void loadTyped(Loaded& which);
    void settingChanged(const QString& name);
    void step(int by, int smallest, int largest);

    Desktop& m_desktop;
    DefaultsController& m_defaults;
    HistoryWindow& m_window;
    EntryFinder m_finder;
    Loaded m_history;
    Loaded m_info;
    QString m_text;
    std::optional<Wanted> m_waiting; ///< to be searched for once the files are loaded
    QString m_shownName;
    QTimer* m_following;
    Wanted m_next; ///< to be searched for when m_following ends
    QThreadPool m_pool; ///< the last member: its threads end before what they use is destroyed
};

} // namespace tessera
