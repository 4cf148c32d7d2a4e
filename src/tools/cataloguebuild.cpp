#include "tools/cataloguebuild.h"

#include "catalogue/storereader.h"
#include "core/keptfile.h"
#include "tools/conversion.h"
#include "tools/titletable.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <chrono>

#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace tessera {

namespace {

constexpr std::chrono::seconds graceTime(3);
constexpr qsizetype errorsKept = 2000;
constexpr qsizetype lastLines = 3;

} // namespace

CatalogueBuild::CatalogueBuild(QObject* parent)
    : QObject(parent)
{
    connect(&m_process, &QProcess::readyReadStandardOutput, this, &CatalogueBuild::read);
    connect(&m_process, &QProcess::readyReadStandardError, this, &CatalogueBuild::readErrors);
    connect(&m_process, &QProcess::finished, this, &CatalogueBuild::conclude);
    m_grace.setSingleShot(true);
    m_grace.setInterval(graceTime);
    connect(&m_grace, &QTimer::timeout, &m_process, &EmulatorProcess::killAll);
    connect(
        &m_process, &QProcess::errorOccurred, this,
        [this](QProcess::ProcessError error) {
            if (error == QProcess::FailedToStart)
                fail(Failure{"build_not_started", {m_emulator, m_process.errorString()}});
        },
        Qt::QueuedConnection);
}

CatalogueBuild::~CatalogueBuild() = default;

void CatalogueBuild::start(const QString& emulator, const QString& output, const QString& titles,
                           const QDateTime& date)
{
    m_emulator = emulator;
    m_output = output;
    m_date = date;
    m_keptAs.clear();
    m_errors.clear();
    m_failure.reset();
    m_printed = false;
    m_isCancelled = false;
    readTitleList(titles);
    m_converter = std::make_unique<ListxmlConverter>(*m_titles, ConversionOptions{});
    if (const auto found = obstacle()) {
        QTimer::singleShot(0, this, [this, failure = *found] { fail(failure); });
        return;
    }
    m_process.run(emulator, {QStringLiteral("-listxml")});
}

void CatalogueBuild::readTitleList(const QString& path)
{
    m_titles = std::make_unique<TitleTable>();
    m_titlesFailure.reset();
    if (path.isEmpty())
        return;
    if (auto table = readTitles(path))
        *m_titles = std::move(*table);
    else
        m_titlesFailure = table.error();
}

// What can be seen before minutes are spent on it.
std::optional<Failure> CatalogueBuild::obstacle() const
{
    const QFileInfo program(m_emulator);
    if (!program.exists())
        return Failure{"build_missing", {m_emulator}};
    if (program.isDir())
        return Failure{"build_is_folder", {m_emulator}};
    if (!program.isExecutable())
        return Failure{"build_not_executable", {m_emulator}};
    const QString folder = QFileInfo(m_output).path();
    if (!QDir().mkpath(folder) || ::faccessat(AT_FDCWD, QFile::encodeName(folder), W_OK, AT_EACCESS) != 0)
        return Failure{"build_read_only", {folder}};
    return std::nullopt;
}

void CatalogueBuild::cancel()
{
    if (!isRunning() || m_isCancelled)
        return;
    m_isCancelled = true;
    if (m_process.state() == QProcess::NotRunning)
        return;
    m_process.signalAll(SIGTERM);
    m_grace.start();
}

void CatalogueBuild::read()
{
    if (!isRunning())
        return;
    const std::size_t before = m_converter->games();
    while (const qint64 available = m_process.bytesAvailable()) {
        const std::span<char> room = m_converter->room(static_cast<std::size_t>(available));
        const qint64 count = m_process.read(room.data(), available);
        if (count <= 0)
            break;
        m_printed = true;
        if (m_isCancelled || m_failure)
            continue;
        if (const auto taken = m_converter->extend(static_cast<std::size_t>(count)); !taken) {
            m_failure = taken.error();
            m_process.killAll();
        } else if (const auto& stopped = m_converter->stopped()) {
            // Half a catalogue is not wanted: the rest need not be waited for.
            m_failure = Failure{"build_too_long", {m_emulator, stopped->set}};
            m_process.killAll();
        }
    }
    if (m_converter->games() != before && !m_isCancelled)
        Q_EMIT progress(static_cast<int>(m_converter->games()));
}

void CatalogueBuild::readErrors()
{
    m_errors += m_process.readAllStandardError();
    m_errors = m_errors.right(errorsKept);
}

void CatalogueBuild::conclude(int status, QProcess::ExitStatus how)
{
    read();
    readErrors();
    if (!isRunning())
        return;
    if (m_isCancelled) {
        letGo();
        Q_EMIT cancelled();
        return;
    }
    const auto machines = result(status, how);
    letGo();
    if (machines)
        Q_EMIT finished(*machines);
    else
        Q_EMIT failed(machines.error());
}

std::expected<int, Failure> CatalogueBuild::result(int status, QProcess::ExitStatus how)
{
    if (m_failure)
        return std::unexpected(*m_failure);
    if (how == QProcess::CrashExit)
        return std::unexpected(Failure{"build_crashed", {m_emulator, QString::number(status)}});
    if (status != 0) {
        const QString words = lastWords();
        if (words.isEmpty())
            return std::unexpected(Failure{"build_status", {m_emulator, QString::number(status)}});
        return std::unexpected(Failure{"build_status_words", {m_emulator, QString::number(status), words}});
    }
    if (!m_printed)
        return std::unexpected(Failure{"build_nothing_printed", {m_emulator}});
    const auto list = m_converter->finish();
    if (!list)
        return std::unexpected(list.error());
    if (const auto& stopped = list->stopped)
        return std::unexpected(Failure{"build_cut_off_in", {m_emulator, stopped->set}});
    if (list->games == 0)
        return std::unexpected(Failure{"build_no_list", {m_emulator}});
    if (!list->isWhole)
        return std::unexpected(Failure{"build_cut_off", {m_emulator}});
    // What was copied as it stands can break the store's own text.
    const std::string text = list->text.joined();
    auto readBack = readStoreText(text, m_output);
    if (!readBack)
        return std::unexpected(Failure{"build_unreadable", {m_emulator}});
    const auto kept = KeptFile(m_output).write(text, m_date);
    if (!kept)
        return std::unexpected(kept.error());
    m_keptAs = *kept;
    m_stored = std::move(*readBack);
    return static_cast<int>(list->games);
}

QString CatalogueBuild::lastWords() const
{
    QStringList lines;
    for (const QString& line : QString::fromUtf8(m_errors).split(QLatin1Char('\n'))) {
        if (!line.trimmed().isEmpty())
            lines << line.trimmed();
    }
    return lines.mid(std::max<qsizetype>(0, lines.size() - lastLines)).join(QLatin1Char('\n'));
}

void CatalogueBuild::fail(const Failure& failure)
{
    const bool wasCancelled = m_isCancelled;
    letGo();
    if (wasCancelled)
        Q_EMIT cancelled();
    else
        Q_EMIT failed(failure);
}

void CatalogueBuild::letGo()
{
    m_grace.stop();
    m_converter.reset();
    m_titles.reset();
}

} // namespace tessera
