#pragma once

#include "core/settingskeys.h"
#include "tools/watch.h"

#include <QObject>
#include <QThreadPool>

#include <memory>

class QLineEdit;

namespace tessera {

class DefaultsController;
class Desktop;
class UtilityFoot;
class Workbench;
struct ToolPath;

/// What goes on beside the windows, as it is seen from there.
class Job
{
public:
    Job(Workbench& workbench, int number, std::stop_token stop)
        : m_workbench(workbench)
        , m_number(number)
        , m_stop(std::move(stop))
    {
    }

    const std::stop_token& stop() const { return m_stop; }
    /// The call is made on the windows' thread, unless the job is abandoned by then.
    template <class Call>
    void post(Call call) const
    {
        const auto unlessAbandoned = [job = *this, call = std::move(call)] {
            if (!job.isAbandoned())
                call();
        };
        QMetaObject::invokeMethod(&m_workbench, unlessAbandoned, Qt::QueuedConnection);
    }
    /// A line of the system log; written whether or not the job is abandoned.
    void log(const QString& line) const;
    /// For the windows' thread alone.
    bool isAbandoned() const;

private:
    Workbench& m_workbench;
    int m_number;
    std::stop_token m_stop;
};

/// What the tools of the utility window share: information line, indicator, path choosers, and one job at a
/// time beside the windows.
class Workbench : public QObject
{
    Q_OBJECT

public:
    Workbench(Desktop& desktop, DefaultsController& defaults, UtilityFoot& foot, QObject* parent = nullptr);
    /// A job that goes on is stopped.
    ~Workbench() override;

    Desktop& desktop() { return m_desktop; }
    void inform(const QString& text);
    /// The same with a beep.
    void refuse(const QString& text);
    /// The same with the sound of a tool that has finished.
    void conclude(const QString& text);

    void indicator_start();
    void indicator_stop();
    /// Sizes in bytes.
    void showProgress(qint64 done, qint64 all);

    /// How many of something are done, where nobody knows how many there will be.
    void showCount(const QString& text);
    /// For a job that reads a file: shows how much of it was read.
    Watch watch(const Job& job, const QString& path);

    /// The chosen path; empty after Cancel.
    QString openPanelpath(bool chooseFile, bool chooseDirect, const QString& title = {},
                          const QStringList& kind = {});
    /// Fills the field, stores the path and flushes; nothing after Cancel.
    void choose(QLineEdit& field, const ToolPath& path);
    /// The same with a path that is known.
    void takePath(QLineEdit& field, const ChosenKey& key, const QString& path);

    bool isBusy() const { return m_isBusy; }
    /// Runs `work` (of a Job) on another thread and hands what it gave, and whether it was cancelled, to
    /// `done` on this one. Not while another job goes on.
    template <class Work, class Done>
    void run(Work work, Done done)
    {
        run(std::move(work), std::move(done), [](const auto&) { return qtTrId("tool_undone"); });
    }
    /// The same; where the job is abandoned, the status line says what `undone` makes of the result.
    template <class Work, class Done, class Undone>
    void run(Work work, Done done, Undone undone)
    {
        const Job job = begin();
        m_pool.start([this, job, work = std::move(work), done = std::move(done), undone = std::move(undone)] {
            const auto result = std::make_shared<decltype(work(job))>(work(job));
            const auto finish = [this, job, done, undone, result] {
                if (job.isAbandoned())
                    return sayUndone(undone(*result));
                end();
                done(std::move(*result), job.stop().stop_requested());
            };
            // While somebody is asked whether a job may be abandoned, its end waits for the answer.
            const auto afterAnswer = [this, finish] {
                if (m_isAsking)
                    connect(this, &Workbench::answered, this, finish, Qt::SingleShotConnection);
                else
                    finish();
            };
            QMetaObject::invokeMethod(this, afterAnswer, Qt::QueuedConnection);
        });
    }
    /// The same for work that may fail: only a good result goes to `done`. A failure is said with a beep, and
    /// that it was cancelled without one; the indicator stops then.
    template <class Work, class Done>
    void runOrRefuse(Work work, Done done)
    {
        run(std::move(work), [this, done = std::move(done)](auto result, bool isCancelled) {
            if (isCancelled || !result)
                return giveUp(isCancelled ? QString() : result.error().text());
            done(std::move(*result));
        });
    }
    /// The job is asked to stop; it still ends by `done`.
    void cancel();
    /// The same, but nothing of it is shown any more except what it left undone.
    void abandon();
    /// Asks, where a job goes on, whether it may be abandoned.
    bool mayBeAbandoned();
    /// The main window's status line says why something went otherwise, until the next job begins.
    void explain(const QString& text);

Q_SIGNALS:
    void statusMessage(const QString& text);
    /// It is out of date.
    void statusWithdrawn(const QString& text);
    /// Whether a job may be abandoned is known by now.
    void answered();

private:
    friend class Job;
    void giveUp(const QString& failure);
    void sayUndone(const QString& text);
    Job begin();
    void end();

    Desktop& m_desktop;
    DefaultsController& m_defaults;
    UtilityFoot& m_foot;
    std::stop_source m_stop;
    bool m_isBusy = false;
    int m_job = 0;
    bool m_isAsking = false; ///< whether a job may be abandoned
    QString m_explained;
    QThreadPool m_pool; ///< ends first, while everything else still stands
};

} // namespace tessera
