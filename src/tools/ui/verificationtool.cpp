#include "tools/ui/verificationtool.h"

#include "core/atomicfile.h"
#include "platform/desktop.h"
#include "tools/printedtext.h"
#include "tools/ui/verificationpage.h"
#include "tools/ui/workbench.h"

#include <QFileInfo>
#include <QLineEdit>
#include <QPushButton>

namespace tessera {

VerificationTool::VerificationTool(VerificationPage& page, Workbench& workbench, QObject* parent)
    : QObject(parent)
    , m_page(page)
    , m_workbench(workbench)
{
    connect(m_page.button_convert2, &QPushButton::clicked, this, &VerificationTool::converter2Action);
    connect(m_page.button_verifyroms, &QPushButton::clicked, this, &VerificationTool::selectVerifytxt);
}

void VerificationTool::converter2Action()
{
    if (m_workbench.isBusy())
        return m_workbench.desktop().beep();
    m_workbench.inform(verificationtexts::started);
    const QString path = m_page.verifyromsTextField->text();
    if (!QFileInfo::exists(path))
        return m_workbench.refuse(verificationtexts::noFile);
    m_workbench.indicator_start();
    const auto condense
        = [path, chosen = m_page.chosen()](const Job& job) -> std::expected<std::string, Failure> {
        const auto printed = readPrinted(path);
        if (!printed)
            return std::unexpected(printed.error());
        return verificationReport(*printed, chosen, job.stop());
    };
    m_workbench.run(condense, [this](std::expected<std::string, Failure> report, bool isCancelled) {
        offer(std::move(report), isCancelled);
    });
}

void VerificationTool::offer(std::expected<std::string, Failure> report, bool isCancelled)
{
    const auto end = [this] { m_workbench.indicator_stop(); };
    if (isCancelled) {
        m_workbench.inform(verificationtexts::cancelled);
        return end();
    }
    if (!report || report->empty()) {
        m_workbench.refuse(report ? QString(verificationtexts::nothingChosen) : report.error().text());
        return end();
    }
    const auto path = m_workbench.desktop().savePanel({QStringLiteral("Save Verifyroms text"),
                                                       QStringLiteral("verifyroms_convert"),
                                                       {QStringLiteral("txt")}});
    if (path)
        return save(*path, std::move(*report));
    m_workbench.inform(verificationtexts::cancelled);
    end();
}

void VerificationTool::save(const QString& path, std::string report)
{
    m_workbench.run([path, report = std::move(report)](
                        const Job&) { return writeAtomically(path, std::array{std::string_view(report)}); },
                    [this](const std::expected<void, Failure>& written, bool) { conclude(written); });
}

// A failure without a beep: deliberate.
void VerificationTool::conclude(const std::expected<void, Failure>& written)
{
    if (written)
        m_workbench.conclude(verificationtexts::saved);
    else
        m_workbench.inform(QString(verificationtexts::notWritten)
                               .arg(written.error().arguments[0], written.error().arguments[1]));
    m_workbench.indicator_stop();
}

void VerificationTool::selectVerifytxt()
{
    m_workbench.choose(*m_page.verifyromsTextField, keys::verifyromsText, Workbench::Choice::File);
}

} // namespace tessera
