#include "launch/profilecache.h"

#include "core/atomicfile.h"
#include "launch/usagequestion.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <array>
#include <tuple>

namespace tessera {

namespace {

constexpr qint64 fileLimit = 3 << 20; // both texts at their limits

QByteArray checksum(QByteArrayView bytes)
{
    return QCryptographicHash::hash(bytes.toByteArray(), QCryptographicHash::Sha1).toHex();
}

// Path, size and time of each settings file that is there.
QByteArray settingsState(const ProfileAnswer& answer, const EmulatorIdentity& identity)
{
    QByteArray state;
    if (!answer.profile)
        return state;
    for (const QString& file : answer.profile->settingsFiles(QFileInfo(identity.path).path())) {
        if (const auto settings = EmulatorIdentity::of(file))
            state += settings->text().toUtf8() + '\n';
    }
    return state;
}

// One line with the program's identity, one with the checksum of what the answer hangs on, then the text as
// it was printed.
QByteArray head(const EmulatorIdentity& identity, const QByteArray& settings, const QByteArray& usage)
{
    return "tessera-profile 3 " + identity.text().toUtf8().toPercentEncoding(" /") + '\n'
        + checksum(QByteArray(settings + usage)) + '\n';
}

std::optional<ProfileAnswer> readAnswer(const QString& path, const EmulatorIdentity& identity)
{
    QFile file(path);
    if (file.size() > fileLimit || !file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QByteArray bytes = file.readAll();
    const qsizetype start = bytes.indexOf('\n', bytes.indexOf('\n') + 1) + 1;
    const QByteArray usage = bytes.mid(start);
    const ProfileAnswer answer{EmulatorProfile::fromUsage(usage)};
    return bytes.startsWith(head(identity, settingsState(answer, identity), usage)) ? std::optional(answer)
                                                                                    : std::nullopt;
}

} // namespace

ProfileCache::ProfileCache(const QString& folder, QObject* parent)
    : QObject(parent)
    , m_folder(folder)
{
}

QString ProfileCache::standardFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation)
        + QStringLiteral("/Tessera/profiles");
}

QString ProfileCache::fileFor(const EmulatorIdentity& identity) const
{
    return m_folder + QLatin1Char('/') + QString::fromLatin1(checksum(identity.path.toUtf8()))
        + QStringLiteral(".txt");
}

std::optional<ProfileAnswer> ProfileCache::remembered(const QString& executable)
{
    const auto identity = EmulatorIdentity::of(executable);
    if (!identity)
        return std::nullopt;
    const auto known = m_known.constFind(identity->text());
    if (known != m_known.constEnd() && known->settings == settingsState(known->answer, *identity))
        return known->answer;
    const auto answer = readAnswer(fileFor(*identity), *identity);
    if (answer)
        m_known[identity->text()] = {*answer, settingsState(*answer, *identity)};
    return answer;
}

ProfileAnswer ProfileCache::ask(const QString& executable)
{
    if (const auto known = remembered(executable))
        return *known;
    const auto identity = EmulatorIdentity::of(executable);
    if (!identity)
        return {};
    UsageQuestion question(executable);
    question.askAndWait();
    return keep(identity, question);
}

void ProfileCache::request(const QString& executable)
{
    if (m_underWay.contains(executable))
        return;
    const auto identity = EmulatorIdentity::of(executable);
    const auto known = remembered(executable);
    if (known || !identity) {
        const ProfileAnswer answer = known.value_or(ProfileAnswer());
        QMetaObject::invokeMethod(
            this, [this, executable, answer] { Q_EMIT answered(executable, answer); }, Qt::QueuedConnection);
        return;
    }
    auto* question = new UsageQuestion(executable, this);
    m_underWay.insert(executable, question);
    // Queued: a program that cannot be started answers from within ask().
    connect(
        question, &UsageQuestion::answered, this,
        [this, executable, identity, question] { finish(executable, identity, question); },
        Qt::QueuedConnection);
    question->ask();
}

void ProfileCache::finish(const QString& executable, const std::optional<EmulatorIdentity>& identity,
                          UsageQuestion* question)
{
    m_underWay.remove(executable);
    const ProfileAnswer answer = keep(identity, *question);
    question->deleteLater();
    Q_EMIT answered(executable, answer);
}

ProfileAnswer ProfileCache::keep(const std::optional<EmulatorIdentity>& identity,
                                 const UsageQuestion& question)
{
    const auto usage = question.answer();
    // One that could not be started was not asked.
    if (!usage || !identity)
        return {};
    const ProfileAnswer answer{EmulatorProfile::fromUsage(*usage)};
    const QByteArray settings = settingsState(answer, *identity);
    m_known[identity->text()] = {answer, settings};
    // A program that crashed or was too slow is asked again in the next run.
    if (!question.isAnsweredForGood())
        return answer;
    QDir().mkpath(m_folder);
    const QByteArray first = head(*identity, settings, *usage);
    const std::array<std::string_view, 2> pieces{
        std::string_view(first.constData(), static_cast<std::size_t>(first.size())),
        std::string_view(usage->constData(), static_cast<std::size_t>(usage->size()))};
    // Where the answer cannot be written it is kept for this run.
    std::ignore = writeAtomically(fileFor(*identity), pieces);
    return answer;
}

} // namespace tessera
