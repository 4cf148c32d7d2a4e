#include "tools/ui/separationtool.h"

#include "platform/desktop.h"
#include "tools/ui/rowslist.h"
#include "tools/ui/rowsmodel.h"
#include "tools/ui/separationpage.h"
#include "tools/ui/workbench.h"
#include "tools/verification.h"

#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QLineEdit>
#include <QPushButton>

#include <functional>

namespace tessera {

namespace {

constexpr qint64 progressEvery = 50; // milliseconds

std::vector<std::string> namesShown(const RowsModel& rows)
{
    std::vector<std::string> names;
    names.reserve(rows.size());
    for (std::size_t i = 0; i < rows.size(); ++i)
        names.push_back(rows.shown(i).name);
    return names;
}

} // namespace

SeparationTool::SeparationTool(SeparationPage& page, Workbench& workbench, QObject* parent)
    : QObject(parent)
    , m_page(page)
    , m_workbench(workbench)
{
    m_planPool.setMaxThreadCount(1);
    connect(m_page.button_check1, &QPushButton::clicked, this, &SeparationTool::statuscheck);
    connect(m_page.button_separete, &QPushButton::clicked, this, &SeparationTool::separateAction);
    for (const QLineEdit* field :
         {m_page.rompathTextField1, m_page.listfullTextField1, m_page.movepathTextField})
        connect(field, &QLineEdit::textChanged, this, &SeparationTool::makePlan);
}

SeparationTool::~SeparationTool()
{
    m_planStop.request_stop();
}

std::vector<std::string> SeparationTool::romlist() const
{
    return romNames(m_page.rompathTextField1->text());
}

void SeparationTool::statuscheck()
{
    if (m_workbench.isBusy())
        return m_workbench.desktop().beep();
    m_workbench.inform(separationtexts::checking);
    const QString roms = m_page.rompathTextField1->text();
    if (!QFileInfo::exists(roms))
        return m_workbench.refuse(separationtexts::noRoms);
    if (!QFileInfo::exists(m_page.listfullTextField1->text()))
        return m_workbench.refuse(separationtexts::noListfull);
    m_workbench.indicator_start();
    clear_separatorController();
    m_workbench.run([roms](const Job&) { return romNames(roms); },
                    std::bind_front(&SeparationTool::list, this));
}

void SeparationTool::list(const std::vector<std::string>& names, bool isCancelled)
{
    m_workbench.indicator_stop();
    if (isCancelled)
        return m_workbench.inform(verificationtexts::cancelled);
    std::vector<RowsModel::Row> rows;
    rows.reserve(names.size());
    for (const std::string& name : names)
        rows.push_back({name, QString()});
    m_page.rows->setRows(std::move(rows));
    m_workbench.conclude(QString(separationtexts::listed).arg(names.size()));
    makePlan();
}

// Worked out on another thread and shown beside the list, whose own rows do not change.
void SeparationTool::makePlan()
{
    m_planStop.request_stop();
    m_planStop = std::stop_source();
    m_page.hidePlan();
    if (m_page.rows->size() == 0 || !QFileInfo(m_page.movepathTextField->text()).isDir())
        return;
    m_planPool.start([this, names = namesShown(*m_page.rows), stop = m_planStop.get_token(),
                      roms = m_page.rompathTextField1->text(), listfull = m_page.listfullTextField1->text(),
                      destination = m_page.movepathTextField->text()] {
        const auto plan = Separation(roms, destination, SupportedNames::read(listfull)).plan(names, stop);
        QMetaObject::invokeMethod(
            this,
            [this, stop, plan] {
                if (!stop.stop_requested())
                    m_page.showPlan(plan);
            },
            Qt::QueuedConnection);
    });
}

void SeparationTool::separateAction()
{
    if (m_workbench.isBusy())
        return m_workbench.desktop().beep();
    m_workbench.inform(separationtexts::started);
    const QString destination = m_page.movepathTextField->text();
    if (!QFileInfo::exists(destination))
        return m_workbench.refuse(separationtexts::noDestination);
    if (m_page.rows->size() == 0)
        return m_workbench.refuse(separationtexts::noRows);
    m_workbench.indicator_start();
    m_failures.clear();
    m_page.showFailures({});
    const auto separate = [this, destination, names = namesShown(*m_page.rows),
                           places = m_page.rows->places(), roms = m_page.rompathTextField1->text(),
                           listfull = m_page.listfullTextField1->text()](const Job& job) {
        const Separation separation(roms, destination, SupportedNames::read(listfull));
        const qint64 all = separation.plan(names, job.stop()).bytes;
        qint64 copied = 0;
        QElapsedTimer sinceProgress;
        const auto progress = [&](std::int64_t more) {
            copied += more;
            if (sinceProgress.isValid() && sinceProgress.elapsed() < progressEvery)
                return;
            sinceProgress.start();
            job.post([this, copied, all] { m_workbench.showProgress(std::min(copied, all), all); });
        };
        return separation.run(names, {job.stop(), progress}, [&](const SeparatedRow& row) {
            if (const auto line = row.logLine())
                job.log(*line);
            job.post([this, row, place = places[row.index]] { mark(place, row); });
        });
    };
    m_workbench.run(
        separate, [this](const SeparationCounts& counts, bool) { conclude(counts); },
        [all = m_page.rows->size()](const SeparationCounts& counts) { return leftUndone(counts, all); });
}

// Closing the window takes no copy away: it is said how many there are.
QString SeparationTool::leftUndone(const SeparationCounts& counts, std::size_t all)
{
    if (!counts.isCancelled)
        return {};
    const int done = counts.supported + counts.moved;
    return Message{"separation_undone", {QString::number(done), QString::number(all)}}.text();
}

void SeparationTool::mark(std::size_t place, const SeparatedRow& row)
{
    m_page.rows->setState(place, row.isSupported ? separationtexts::support : separationtexts::moved);
    if (row.failure)
        m_failures << row.failure->text();
}

void SeparationTool::conclude(const SeparationCounts& counts)
{
    m_workbench.indicator_stop();
    m_page.showFailures(m_failures);
    if (counts.isCancelled)
        m_workbench.inform(verificationtexts::cancelled);
    else
        m_workbench.conclude(separationSummary(m_page.rows->size(), counts));
    makePlan();
}

void SeparationTool::movefile(const QString& fileName)
{
    const Separation separation(m_page.rompathTextField1->text(), m_page.movepathTextField->text(), {});
    if (const auto line = separation.copy(QFile::encodeName(fileName).toStdString()).logLine())
        m_workbench.desktop().log(*line);
}

void SeparationTool::clear_separatorController()
{
    m_page.separationList->dropSort();
    m_page.rows->setRows({});
    m_page.showFailures({});
    makePlan();
}

} // namespace tessera
