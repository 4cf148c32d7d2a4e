#pragma once

#include <QByteArrayView>
#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>

#include <optional>

namespace tessera {

/// What one emulator program says of itself: the options that it understands, and where it looks for ROMs.
class EmulatorProfile
{
public:
    /// From its -showusage text, with its -showconfig text behind it or not. Nothing where the text is not an
    /// emulator's.
    static std::optional<EmulatorProfile> fromUsage(QByteArrayView usage);

    struct Option {
        QString name; ///< "-rompath"
        QString description; ///< in the program's own words
    };
    /// What can be offered, in the program's order. A name that runs into its description is none of it.
    const QList<Option>& options() const { return m_options; }

    /// True where the program takes `option` ("-rotate"), or its opposite ("-norotate").
    bool lists(QStringView option) const;
    /// The same, where the program may have renamed the option.
    bool takes(const QString& option) const { return lists(nameNow(option)); }
    /// The values that its description of the option lists: "output method: sdl, portaudio or none". None
    /// where it lists none.
    QStringList valuesOf(const QString& option) const;

    /// Its own ROM folders joined by ";", as it writes them; empty where it does not say.
    QString romFolders() const { return m_romFolders; }

    /// The same as a list of absolute paths, with the variables of the environment put in. `home` is where
    /// the program runs.
    QStringList romFolderList(const QString& home) const;
    /// Where it puts its own snapshots.
    QStringList snapshotFolderList(const QString& home) const;
    /// Where it keeps its own settings: the answer holds while none of these files changes.
    QStringList settingsFiles(const QString& home) const;

    struct Fitted {
        QStringList arguments;
        QStringList leftOut; ///< what the program would not understand, with values: "-beam 1"
    };

    /// Literal double quotes around values: no program takes them off, a shell does.
    enum class Quotes { Dropped, Kept };

    /// The builder's list in the program's own words: without what it does not list and without empty values,
    /// renamed options under their new name.
    Fitted fit(const QStringList& built, Quotes quotes = Quotes::Dropped) const;

private:
    void readOption(QStringView line);
    void readSetting(QStringView line);
    bool listsName(QStringView name) const;
    QString nameNow(const QString& option) const;
    void fitValue(const QString& built, const QString& value, Quotes quotes, Fitted& fitted) const;

    QSet<QString> m_names;
    QList<Option> m_options;
    QStringList m_overlong; ///< names with the first word of their description behind them
    QString m_romFolders;
    QString m_iniFolders;
    QString m_snapshotFolder;
    bool m_soundTakesValue = true;
};

} // namespace tessera
