#include "tools/ui/existencetool.h"

#include "core/atomicfile.h"
#include "platform/desktop.h"
#include "tools/emulatorrun.h"
#include "tools/ui/existencepage.h"
#include "tools/ui/foundbar.h"
#include "tools/ui/rowslist.h"
#include "tools/ui/rowsmodel.h"
#include "tools/ui/workbench.h"
#include "tools/verification.h"

#include <QFileInfo>
#include <QLineEdit>
#include <QPushButton>

#include <functional>

namespace tessera {

namespace {

constexpr QLatin1StringView listfullName("listfull.txt");

QString text(std::string_view existence)
{
    return QString::fromLatin1(existence.data(), static_cast<qsizetype>(existence.size()));
}

} // namespace

ExistenceTool::ExistenceTool(ExistencePage& page, Workbench& workbench, UtilityHost& host, QObject* parent)
    : QObject(parent)
    , m_page(page)
    , m_workbench(workbench)
    , m_host(host)
{
    connect(m_page.button_ask2, &QPushButton::clicked, this, &ExistenceTool::askEmulator);
    connect(m_page.button_csv, &QPushButton::clicked, this, &ExistenceTool::exportCsv);
    connect(m_page.reportList, &RowsList::opened, this, [this](const QString& name) {
        if (!m_host.openGame(name))
            m_workbench.desktop().beep();
    });
    connect(m_page.button_check2, &QPushButton::clicked, this, &ExistenceTool::romlistup);
    connect(m_page.button_save, &QPushButton::clicked, this, &ExistenceTool::saveAction);
}

void ExistenceTool::romlistup()
{
    if (m_workbench.isBusy())
        return m_workbench.desktop().beep();
    const QString listfull = m_page.listfullTextField2->text();
    const QString roms = m_page.rompathTextField2->text();
    m_workbench.inform(existencetexts::started);
    if (!QFileInfo::exists(listfull))
        return m_workbench.refuse(existencetexts::noListfull);
    if (!QFileInfo::exists(roms))
        return m_workbench.refuse(existencetexts::noRoms);
    begin();
    m_workbench.run([listfull, roms](const Job&) { return checkExistence(listfull, roms); },
                    std::bind_front(&ExistenceTool::show, this));
}

void ExistenceTool::begin()
{
    m_workbench.indicator_start();
    clear_reportController();
    m_found = 0;
    m_notFound = 0;
}

// What the emulator lists goes to the field as a file, for the separation too.
void ExistenceTool::askEmulator()
{
    if (m_workbench.isBusy())
        return m_workbench.desktop().beep();
    m_workbench.inform(existencetexts::started);
    const QString emulator = m_host.emulator();
    if (emulator.isEmpty())
        return m_workbench.refuse(Failure{"failure_no_emulator", {}}.text());
    if (!QFileInfo::exists(m_page.rompathTextField2->text()))
        return m_workbench.refuse(existencetexts::noRoms);
    begin();
    m_workbench.runOrRefuse(
        [emulator](const Job& job) {
            return keptPrintedBy(emulator, {QStringLiteral("-listfull")}, false, listfullName,
                                 {job.stop(), {}});
        },
        std::bind_front(&ExistenceTool::takePrinted, this));
}

void ExistenceTool::takePrinted(const std::string& printed)
{
    m_workbench.takePath(*m_page.listfullTextField2, keys::listfullPath, printedPath(listfullName));
    m_workbench.run([text = printed, roms = m_page.rompathTextField2->text()](
                        const Job&) { return checkExistenceOf(text, roms); },
                    std::bind_front(&ExistenceTool::show, this));
}

void ExistenceTool::show(std::expected<ExistenceList, Failure> list, bool isCancelled)
{
    if (!isCancelled && !list && list.error().key == QLatin1String("existence_no_header"))
        return stopWithoutHeader(list.error());
    m_workbench.indicator_stop();
    if (isCancelled)
        return m_workbench.inform(verificationtexts::cancelled);
    if (!list)
        return m_workbench.refuse(list.error().text());
    const QString found = text(existencetexts::found);
    const QString notFound = text(existencetexts::notFound);
    std::vector<RowsModel::Row> rows;
    rows.reserve(list->rows.size());
    for (const ExistenceRow& row : list->rows)
        rows.push_back({std::string(row.romlistfull), row.isFound ? found : notFound});
    m_found = list->found;
    m_notFound = list->notFound;
    m_page.rows->setRows(std::move(rows));
    m_page.foundBar->setCounts(m_found, m_notFound);
    m_page.reportList->sortByColumn(RowsModel::StateColumn, Qt::AscendingOrder);
    m_workbench.conclude(existenceSummary(m_page.rows->size(), m_found, m_notFound));
}

// Deliberate: such a check ends in the middle, with the indicator running and the information line as it was.
// The list and the main window's status line say why.
void ExistenceTool::stopWithoutHeader(const Failure& failure)
{
    m_page.reportList->setEmptyText(failure.text());
    m_workbench.explain(failure.text());
}

// As the list's own check, but of the file system itself.
QString ExistenceTool::existscheck(const QString& setName)
{
    const QString path = m_page.rompathTextField2->text() + QLatin1Char('/') + setName;
    const bool isFound = QFileInfo::exists(path + QStringLiteral(".zip")) || QFileInfo::exists(path);
    ++(isFound ? m_found : m_notFound);
    return text(isFound ? existencetexts::found : existencetexts::notFound);
}

// The model's own names, in the order shown; also those that a filter hides.
std::vector<ExistenceRow> ExistenceTool::rows() const
{
    std::vector<ExistenceRow> rows;
    rows.reserve(m_page.rows->size());
    for (std::size_t i = 0; i < m_page.rows->size(); ++i) {
        const RowsModel::Row& row = m_page.rows->shown(i);
        rows.push_back({row.name, row.state == text(existencetexts::found)});
    }
    return rows;
}

void ExistenceTool::exportCsv()
{
    if (m_page.rows->size() == 0)
        return m_workbench.refuse(existencetexts::noReport);
    const auto path = m_workbench.desktop().savePanel(
        {qtTrId("existence_csv_title"), QStringLiteral("ROM Existence Report"), {QStringLiteral("csv")}});
    if (!path)
        return;
    if (const auto written = writeAtomically(*path, existenceCsv(rows())); !written)
        return m_workbench.refuse(written.error().text());
    m_workbench.inform(qtTrId("existence_csv_saved").arg(*path));
}

void ExistenceTool::saveAction()
{
    if (m_page.rows->size() == 0)
        return m_workbench.refuse(existencetexts::noReport);
    m_report = existenceReport(rows(), m_found, m_notFound);
    if (const auto path = m_workbench.desktop().savePanel({QStringLiteral("Save Report file"),
                                                           QStringLiteral("ROM Existence Report"),
                                                           {QStringLiteral("txt")}}))
        write(*path);
}

// Deliberate: neither success nor failure is told; the log has the failure.
void ExistenceTool::write(const QString& path)
{
    if (const auto written = writeAtomically(path, m_report); !written)
        m_workbench.desktop().log(
            QString(existencetexts::notWritten).arg(path, written.error().arguments.last()));
}

void ExistenceTool::clear_reportController()
{
    m_page.reportList->dropSort();
    m_page.rows->setRows({});
    m_page.filterField->clear();
    m_page.foundBar->setCounts(0, 0);
    m_page.reportList->setEmptyText(qtTrId("existence_empty"));
}

} // namespace tessera
