#pragma once

#include "launch/emulatoridentity.h"
#include "launch/emulatorprofile.h"

#include <QHash>
#include <QObject>

namespace tessera {

class UsageQuestion;

/// What a program answered; no profile where it gave no usable answer.
struct ProfileAnswer {
    std::optional<EmulatorProfile> profile;
};

/// The profiles of the emulators. A program is asked once and its answer, usable or not, remembered in a file
/// by path, size and time, and by those of its own settings files, which tell where its ROMs are.
class ProfileCache : public QObject
{
    Q_OBJECT

public:
    explicit ProfileCache(const QString& folder = standardFolder(), QObject* parent = nullptr);

    /// $XDG_CACHE_HOME/Tessera/profiles
    static QString standardFolder();

    /// Nothing where the program was never asked.
    std::optional<ProfileAnswer> remembered(const QString& executable);
    /// The remembered answer, or the program's own; waits for it.
    ProfileAnswer ask(const QString& executable);
    /// Asks the program, unless that is under way; answered() follows from the event loop in any case.
    void request(const QString& executable);

Q_SIGNALS:
    void answered(const QString& executable, const tessera::ProfileAnswer& answer);

private:
    QString fileFor(const EmulatorIdentity& identity) const;
    ProfileAnswer keep(const std::optional<EmulatorIdentity>& identity, const UsageQuestion& question);
    void finish(const QString& executable, const std::optional<EmulatorIdentity>& identity,
                UsageQuestion* question);

    QString m_folder;
    struct Known {
        ProfileAnswer answer;
        QByteArray settings; ///< what its settings files were
    };
    QHash<QString, Known> m_known; ///< by EmulatorIdentity::text()
    QHash<QString, UsageQuestion*> m_underWay;
};

} // namespace tessera
