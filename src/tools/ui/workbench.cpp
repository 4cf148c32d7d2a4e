#include "tools/ui/workbench.h"

#include "core/message.h"
#include "platform/defaultscontroller.h"
#include "platform/desktop.h"
#include "tools/ui/toolpaths.h"
#include "tools/ui/utilityfoot.h"
#include "tools/verification.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QProgressBar>
#include <QPushButton>

#include <atomic>

namespace tessera {

namespace {
constexpr int wholeIndicator = 1000;
constexpr qint64 progressSteps = 100;
} // namespace

bool Job::isAbandoned() const
{
    return m_number != m_workbench.m_job;
}

void Job::log(const QString& line) const
{
    Workbench& workbench = m_workbench;
    QMetaObject::invokeMethod(
        &workbench, [&workbench, line] { workbench.m_desktop.log(line); }, Qt::QueuedConnection);
}

Workbench::Workbench(Desktop& desktop, DefaultsController& defaults, UtilityFoot& foot, QObject* parent)
    : QObject(parent)
    , m_desktop(desktop)
    , m_defaults(defaults)
    , m_foot(foot)
{
    m_pool.setMaxThreadCount(1);
    connect(m_foot.button_cancel, &QPushButton::clicked, this, &Workbench::cancel);
}

// What a job posted before it ended is still delivered: its lines in the log, and what it left undone.
Workbench::~Workbench()
{
    m_stop.request_stop();
    ++m_job;
    m_pool.waitForDone();
    QCoreApplication::sendPostedEvents(this, QEvent::MetaCall);
}

// Painted at once: what follows may keep the event loop waiting.
void Workbench::inform(const QString& text)
{
    m_foot.infoTextField->setText(text);
    m_foot.infoTextField->repaint();
}

void Workbench::refuse(const QString& text)
{
    inform(text);
    m_desktop.beep();
}

void Workbench::conclude(const QString& text)
{
    inform(text);
    m_desktop.playSound(QStringLiteral("st_ovenbell"));
}

void Workbench::indicator_start()
{
    m_foot.progressInd->setRange(0, 0);
    m_foot.showIndicator(true);
    m_foot.progressInd->repaint();
}

void Workbench::indicator_stop()
{
    m_foot.progressInd->setRange(0, wholeIndicator);
    m_foot.progressInd->reset();
    m_foot.showIndicator(false);
}

void Workbench::showProgress(qint64 done, qint64 all)
{
    const double part = all > 0 ? static_cast<double>(done) / static_cast<double>(all) : 1;
    m_foot.progressInd->setRange(0, wholeIndicator);
    m_foot.progressInd->setValue(static_cast<int>(part * wholeIndicator));
    const QLocale locale;
    m_foot.progressCount->setText(
        qtTrId("tool_progress_of").arg(locale.formattedDataSize(done), locale.formattedDataSize(all)));
    m_foot.progressCount->setVisible(true);
}

void Workbench::showCount(const QString& text)
{
    m_foot.progressCount->setText(text);
    m_foot.progressCount->setVisible(true);
}

Watch Workbench::watch(const Job& job, const QString& path)
{
    // Of a pipe nobody knows how much will come.
    const qint64 all = QFileInfo(path).size();
    auto done = std::make_shared<std::atomic<qint64>>(0);
    auto shown = std::make_shared<std::atomic<qint64>>(0);
    const auto progress = [this, job, all, done, shown](qint64 more) {
        const qint64 now = done->fetch_add(more) + more;
        qint64 before = shown->load();
        if (all == 0 || now - before < all / progressSteps || !shown->compare_exchange_strong(before, now))
            return;
        job.post([this, now, all] { showProgress(std::min(now, all), all); });
    };
    return {job.stop(), progress};
}

QString Workbench::openPanelpath(bool chooseFile, bool chooseDirect, const QString& title,
                                 const QStringList& kind)
{
    OpenRequest panel;
    panel.files = chooseFile;
    panel.folders = chooseDirect;
    panel.title = title;
    panel.kind = kind;
    return m_desktop.openPanel(panel).value_or(QString());
}

void Workbench::choose(QLineEdit& field, const ToolPath& path)
{
    const QString chosen = openPanelpath(
        path.kind == ToolPath::Kind::File, path.kind == ToolPath::Kind::Folder, qtTrId(path.title),
        QString::fromLatin1(path.extensions).split(QLatin1Char(' '), Qt::SkipEmptyParts));
    if (!chosen.isEmpty())
        takePath(field, path.key, chosen);
}

void Workbench::takePath(QLineEdit& field, const ChosenKey& key, const QString& path)
{
    field.setText(path);
    m_defaults.setText(key, path);
    if (const QString failure = m_defaults.flush(); !failure.isEmpty())
        Q_EMIT statusMessage(failure);
}

// Without a failure it was cancelled.
void Workbench::giveUp(const QString& failure)
{
    indicator_stop();
    if (failure.isEmpty())
        inform(verificationtexts::cancelled);
    else
        refuse(failure);
}

// An empty text means that nothing was left undone.
void Workbench::sayUndone(const QString& text)
{
    if (text.isEmpty())
        return;
    m_desktop.log(text);
    explain(text);
}

void Workbench::explain(const QString& text)
{
    m_explained = text;
    Q_EMIT statusMessage(text);
}

bool Workbench::mayBeAbandoned()
{
    // What was cancelled is not asked about again.
    if (!m_isBusy || m_stop.stop_requested())
        return true;
    Alert alert{qtTrId("tool_close_Message"),
                qtTrId("tool_close_info"),
                {qtTrId("tool_close_stay"), qtTrId("tool_close_stop")}};
    alert.style = Alert::Style::Warning;
    alert.escape = 0;
    const bool wasAsking = std::exchange(m_isAsking, true);
    const bool may = m_desktop.runAlert(alert) == 1;
    m_isAsking = wasAsking;
    if (!m_isAsking)
        QMetaObject::invokeMethod(this, &Workbench::answered, Qt::QueuedConnection);
    return may;
}

Job Workbench::begin()
{
    if (!m_explained.isEmpty())
        Q_EMIT statusWithdrawn(std::exchange(m_explained, QString()));
    m_stop = std::stop_source();
    m_isBusy = true;
    m_foot.setBusy(true);
    return Job(*this, ++m_job, m_stop.get_token());
}

void Workbench::end()
{
    m_isBusy = false;
    m_foot.setBusy(false);
}

void Workbench::cancel()
{
    m_stop.request_stop();
}

void Workbench::abandon()
{
    if (!m_isBusy)
        return;
    m_stop.request_stop();
    ++m_job;
    end();
    indicator_stop();
}

} // namespace tessera
