#include "tools/ui/verificationtool.h"

#include "core/atomicfile.h"
#include "core/texts.h"
#include "platform/desktop.h"
#include "tools/emulatorrun.h"
#include "tools/printedtext.h"
#include "tools/ui/verificationpage.h"
#include "tools/ui/workbench.h"

#include <QFileInfo>
#include <QLineEdit>
#include <QPushButton>

#include <algorithm>
#include <functional>
#include <future>

namespace tessera {

namespace {
constexpr QLatin1StringView verifyromsName("verifyroms.txt");

QString notWritten(const Failure& failure)
{
    return QString(verificationtexts::notWritten).arg(failure.arguments[0], failure.arguments[1]);
}
} // namespace

VerificationTool::VerificationTool(VerificationPage& page, Workbench& workbench, UtilityHost& host,
                                   QObject* parent)
    : QObject(parent)
    , m_page(page)
    , m_workbench(workbench)
    , m_host(host)
{
    connect(m_page.button_ask3, &QPushButton::clicked, this, &VerificationTool::askEmulator);
    connect(m_page.button_convert2, &QPushButton::clicked, this, &VerificationTool::converter2Action);
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
        = [path, chosen = m_page.chosen()](const Job& job) -> std::expected<Condensed, Failure> {
        const auto printed = readPrinted(path);
        if (!printed)
            return std::unexpected(printed.error());
        auto sets = std::async(std::launch::async, [&] { return verifiedSets(*printed, job.stop()); });
        std::string report = verificationReport(*printed, chosen, job.stop());
        return Condensed{std::move(report), sets.get()};
    };
    m_workbench.runOrRefuse(condense, std::bind_front(&VerificationTool::offer, this));
}

void VerificationTool::offer(Condensed condensed)
{
    m_page.showSets(std::move(condensed.sets));
    if (condensed.report.empty()) {
        m_workbench.refuse(verificationtexts::nothingChosen);
        return m_workbench.indicator_stop();
    }
    const auto path = m_workbench.desktop().savePanel({QStringLiteral("Save Verifyroms text"),
                                                       QStringLiteral("verifyroms_convert"),
                                                       {QStringLiteral("txt")}});
    if (path)
        return save(*path, std::move(condensed.report));
    m_workbench.inform(verificationtexts::cancelled);
    m_workbench.indicator_stop();
}

void VerificationTool::save(const QString& path, std::string report)
{
    m_workbench.run([path, report = std::move(report)](const Job&) { return writeAtomically(path, report); },
                    [this](const std::expected<void, Failure>& written, bool) { conclude(written); },
                    [](const std::expected<void, Failure>& written) {
                        return written ? QString() : notWritten(written.error());
                    });
}

// A failure without a beep: deliberate.
void VerificationTool::conclude(const std::expected<void, Failure>& written)
{
    if (written)
        m_workbench.conclude(verificationtexts::saved);
    else
        m_workbench.inform(notWritten(written.error()));
    m_workbench.indicator_stop();
}

void VerificationTool::askEmulator()
{
    if (m_workbench.isBusy())
        return m_workbench.desktop().beep();
    const QString emulator = m_host.emulator();
    if (emulator.isEmpty())
        return m_workbench.refuse(Failure{"failure_no_emulator", {}}.text());
    m_workbench.inform(qtTrId("verification_asking"));
    m_workbench.indicator_start();
    QStringList arguments{QStringLiteral("-verifyroms")};
    if (const QString roms = m_host.romFolder(); !roms.isEmpty())
        arguments << QStringLiteral("-rompath") << roms;
    const auto verify
        = [this, emulator, arguments](const Job& job) -> std::expected<std::vector<VerifiedSet>, Failure> {
        std::size_t count = 0;
        const auto printing = [&](std::string_view piece) {
            count += verdictLines(piece);
            job.post([&workbench = m_workbench, count] {
                workbench.showCount(qtTrId("verification_count").arg(numberText(count)));
            });
        };
        // Whatever is bad or missing makes its status another one than 0.
        const auto printed = keptPrintedBy(emulator, arguments, true, verifyromsName, {job.stop(), printing});
        if (!printed)
            return std::unexpected(printed.error());
        return verifiedSets(*printed, job.stop());
    };
    m_workbench.runOrRefuse(verify, std::bind_front(&VerificationTool::takeVerified, this));
}

void VerificationTool::takeVerified(std::vector<VerifiedSet> sets)
{
    m_workbench.indicator_stop();
    m_workbench.takePath(*m_page.verifyromsTextField, keys::verifyromsText, printedPath(verifyromsName));
    const auto count = [&](VerifiedSet::Verdict verdict) {
        return numberText(std::ranges::count(sets, verdict, &VerifiedSet::verdict));
    };
    const QString summary
        = qtTrId("verification_verified")
              .arg(numberText(sets.size()), count(VerifiedSet::Verdict::Good),
                   count(VerifiedSet::Verdict::BestAvailable), count(VerifiedSet::Verdict::Bad));
    m_page.showSets(std::move(sets));
    m_workbench.conclude(summary);
}

} // namespace tessera
