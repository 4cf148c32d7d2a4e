#pragma once

#include "core/keptfile.h"

#include <QDateTime>
#include <QHash>
#include <QObject>
#include <QStringList>

namespace tessera {

/// How often a game was started, and when last.
struct Played {
    quint64 times = 0;
    QDateTime last; ///< invalid where it is not known
};

/// What was played, by set name, in a file of its own.
class PlayedGames : public QObject
{
    Q_OBJECT

public:
    explicit PlayedGames(QString path, QObject* parent = nullptr);

    QString path() const { return m_file.path(); }

    /// Nothing was played where there is no file, nor after a failure.
    std::expected<void, Failure> open();
    std::expected<void, Failure> save();

    /// The game was started.
    void note(const QString& name, const QDateTime& when);
    void clear();

    std::optional<Played> played(const QString& name) const;
    /// Set names of what was played then or later, the last one first.
    QStringList recent(const QDateTime& since) const;
    bool isEmpty() const { return m_games.isEmpty(); }

Q_SIGNALS:
    void changed();

private:
    KeptFile m_file;
    QHash<QString, Played> m_games;
};

} // namespace tessera
