#include "tools/ui/conversiontool.h"

#include "platform/desktop.h"
#include "tools/conversion.h"
#include "tools/ui/conversionpage.h"
#include "tools/ui/workbench.h"

#include <QCheckBox>
#include <QFileInfo>
#include <QLineEdit>
#include <QPushButton>

#include <functional>

namespace tessera {

namespace {

QString notWritten(const QString& path, const Failure& failure)
{
    return QString(conversiontexts::notWritten).arg(path, failure.arguments.last());
}

} // namespace

ConversionTool::ConversionTool(ConversionPage& page, Workbench& workbench, UtilityHost& host, QObject* parent)
    : QObject(parent)
    , m_page(page)
    , m_workbench(workbench)
    , m_host(host)
{
    connect(m_page.button_convert, &QPushButton::clicked, this, &ConversionTool::xmloutputAction);
    connect(m_page.button_useNow, &QPushButton::clicked, this, &ConversionTool::useAsCatalogue);
    connect(m_page.button_changes, &QPushButton::clicked, this, [this] { m_host.showChanges(); });
}

void ConversionTool::xmloutputAction()
{
    if (m_workbench.isBusy())
        return m_workbench.desktop().beep();
    m_workbench.inform(conversiontexts::started);
    if (!QFileInfo::exists(m_page.listxmlTextField->text()))
        return m_workbench.refuse(conversiontexts::noListxml);
    if (!QFileInfo::exists(m_page.mame32jpTextField->text()))
        return m_workbench.refuse(conversiontexts::noTitles);
    outputAction();
}

void ConversionTool::outputAction()
{
    if (m_workbench.isBusy())
        return m_workbench.desktop().beep();
    const ConversionOptions options{m_page.button_isbios->isChecked(),
                                    m_page.button_ismechanical->isChecked(),
                                    m_page.button_isdevice->isChecked()};
    m_page.showSaved({});
    m_workbench.indicator_start();
    m_workbench.runOrRefuse(
        // Without the tool, which may be gone before the job begins; the workbench waits for its jobs.
        [&workbench = m_workbench, options, listxml = m_page.listxmlTextField->text(),
         titles = m_page.mame32jpTextField->text()](const Job& job) {
            return convertFiles(listxml, titles, options, workbench.watch(job, listxml));
        },
        std::bind_front(&ConversionTool::offer, this));
}

// After Cancel in the panel the information line stays as it is: deliberate, as nothing was written.
void ConversionTool::offer(ConvertedList list)
{
    m_workbench.desktop().log(conversiontexts::logged);
    // Before the panel opens: whoever saves the list should know that it is not whole.
    if (const auto& stopped = list.stopped)
        m_workbench.inform(stopReason(*stopped).text());
    const auto path = m_workbench.desktop().savePanel(
        {QStringLiteral("Save XMLlist file"), QStringLiteral("Tessera"), {QStringLiteral("xml")}});
    if (path)
        return save(*path, std::move(list));
    m_workbench.indicator_stop();
}

void ConversionTool::save(const QString& path, ConvertedList list)
{
    m_saved = path;
    // A job copies what it holds, and a list cannot be copied.
    auto held = std::make_shared<ConvertedList>(std::move(list));
    QString report = conversionReport(held->games);
    if (const auto& stopped = held->stopped)
        report += QStringLiteral("  ") + stopReason(*stopped).text();
    m_workbench.run(
        [path, held](const Job&) { return held->text.save(path); },
        [this, report](const std::expected<void, Failure>& written, bool) { conclude(written, report); },
        [path](const std::expected<void, Failure>& written) {
            return written ? QString() : notWritten(path, written.error());
        });
}

void ConversionTool::conclude(const std::expected<void, Failure>& written, const QString& report)
{
    m_workbench.indicator_stop();
    if (!written)
        return m_workbench.refuse(notWritten(m_saved, written.error()));
    m_page.showSaved(m_saved);
    m_workbench.conclude(report);
}

void ConversionTool::useAsCatalogue()
{
    if (m_workbench.isBusy())
        return m_workbench.desktop().beep();
    if (const auto changes = m_host.useAsCatalogue(m_saved))
        m_page.showUsed(*changes);
}

} // namespace tessera
