#include "app/cataloguerebuild.h"

#include "app/rebuildstrip.h"
#include "catalogue/catalogue.h"
#include "launch/emulatoridentity.h"
#include "platform/defaultscontroller.h"
#include "catalogue/storereader.h"
#include "core/atomicfile.h"
#include "core/keptcopy.h"
#include "platform/desktop.h"
#include "tools/cataloguebuild.h"
#include "tools/cataloguecomparison.h"

#include <QFile>
#include <QFileInfo>
#include <QLocale>

namespace tessera {

namespace {

// Where the catalogue before lies; empty where there was none.
QString keptSentence(const QString& kept)
{
    return kept.isEmpty() ? QString() : qtTrId("rebuild_kept").arg(kept);
}

QString identityText(const QString& emulator)
{
    const auto identity = EmulatorIdentity::of(emulator);
    return identity ? identity->text() : QString();
}

} // namespace

CatalogueRebuild::CatalogueRebuild(Catalogue& catalogue, Desktop& desktop, DefaultsController& defaults,
                                   RebuildStrip& strip, std::function<QString()> emulator,
                                   std::function<void()> chooseEmulator,
                                   std::function<QStringList()> favourites, QObject* parent)
    : QObject(parent)
    , m_catalogue(catalogue)
    , m_desktop(desktop)
    , m_defaults(defaults)
    , m_strip(strip)
    , m_emulator(std::move(emulator))
    , m_chooseEmulator(std::move(chooseEmulator))
    , m_favourites(std::move(favourites))
{
    connect(&m_strip, &RebuildStrip::cancelled, this, &CatalogueRebuild::cancel);
}

CatalogueRebuild::~CatalogueRebuild() = default;

bool CatalogueRebuild::isOutdated() const
{
    const QString builtFrom = m_defaults.text(keys::BuiltFrom);
    const QString now = identityText(m_emulator());
    return !builtFrom.isEmpty() && !now.isEmpty() && builtFrom != now;
}

void CatalogueRebuild::rebuild()
{
    if (!isRunning() && mayReplace())
        build();
}

// Edits that were never saved are in memory only: a rebuild would drop them.
bool CatalogueRebuild::mayReplace()
{
    const QString builtFrom = m_defaults.text(keys::BuiltFrom);
    const bool isSame
        = !m_catalogue.records().empty() && !builtFrom.isEmpty() && builtFrom == identityText(m_emulator());
    Alert alert;
    alert.style = Alert::Style::Warning;
    alert.buttons = {qtTrId("rebuild_button"), qtTrId("cancel")};
    if (m_catalogue.hasChanges()) {
        alert.message = qtTrId("rebuild_unsaved_message");
        alert.informative = qtTrId("rebuild_unsaved_info");
        if (isSame)
            alert.informative += QLatin1Char('\n') + qtTrId("rebuild_same_info");
    } else if (isSame) {
        alert.message = qtTrId("rebuild_same_message");
        alert.informative = qtTrId("rebuild_same_info");
    } else {
        return true;
    }
    return m_desktop.runAlert(alert) == 0;
}

void CatalogueRebuild::build()
{
    if (isRunning())
        return;
    if (m_emulator().isEmpty())
        m_chooseEmulator();
    const QString emulator = m_emulator();
    if (emulator.isEmpty()) {
        Q_EMIT statusMessage(qtTrId("rebuild_no_emulator"));
        return;
    }
    m_identity = identityText(emulator);
    m_build = std::make_unique<CatalogueBuild>();
    connect(m_build.get(), &CatalogueBuild::progress, &m_strip, &RebuildStrip::showCount);
    connect(m_build.get(), &CatalogueBuild::finished, this, &CatalogueRebuild::finish);
    connect(m_build.get(), &CatalogueBuild::failed, this, &CatalogueRebuild::fail);
    connect(m_build.get(), &CatalogueBuild::cancelled, this, &CatalogueRebuild::stand);
    Q_EMIT runningChanged(true);
    m_strip.begin(QFileInfo(emulator).fileName());
    // Japanese titles are asked for nowhere here; a list that was chosen before is used.
    m_build->start(emulator, m_catalogue.path(), m_defaults.text(keys::localizePath),
                   datedName(m_catalogue.path(), m_desktop.now()));
}

void CatalogueRebuild::cancel()
{
    if (isRunning())
        m_build->cancel();
}

void CatalogueRebuild::stand()
{
    letGo();
    Q_EMIT statusMessage(qtTrId("rebuild_cancelled"));
}

void CatalogueRebuild::finish(int machines)
{
    const std::optional<Failure> titlesFailure = m_build->titlesFailure();
    const QString kept = m_build->keptAs();
    letGo();
    const auto changes = reopen();
    if (!changes) {
        // Where the old one lies is wanted now more than ever.
        m_desktop.presentError(changes.error().text(), keptSentence(kept), {});
        return;
    }
    QStringList sentences{qtTrId("rebuild_done").arg(QLocale().toString(machines))};
    if (titlesFailure)
        sentences << Failure{"rebuild_without_titles", {titlesFailure->text()}}.text();
    m_defaults.setText(keys::BuiltFrom, m_identity);
    if (!changes->isEmpty())
        sentences << *changes;
    Q_EMIT statusMessage(concluded(sentences, kept));
}

// In one message, as the next one takes its place.
QString CatalogueRebuild::concluded(QStringList sentences, const QString& kept)
{
    if (!kept.isEmpty())
        sentences << keptSentence(kept);
    UserDefaults& settings = m_defaults.defaults();
    if (!settings.synchronize())
        sentences << Failure{"failure_settings", {settings.path()}}.text();
    return sentences.join(QLatin1Char(' '));
}

// What differs from the catalogue before; empty where that one was empty.
std::expected<QString, Failure> CatalogueRebuild::reopen()
{
    // The old texts live until everybody has heard of the new ones.
    const std::vector<GameRecord> before(m_catalogue.records().begin(), m_catalogue.records().end());
    CatalogueComparison comparison;
    const auto compare = connect(&m_catalogue, &Catalogue::replaced, this, [&] {
        if (!before.empty())
            comparison = compareCatalogues(before, m_catalogue.records(), m_favourites());
    });
    const auto opened = m_catalogue.open();
    disconnect(compare);
    if (!opened)
        return std::unexpected(opened.error());
    Q_EMIT compared(comparison);
    return before.empty() ? QString() : comparisonSummary(comparison);
}

std::optional<QString> CatalogueRebuild::useFile(const QString& path)
{
    if (isRunning()) {
        m_desktop.beep();
        return std::nullopt;
    }
    if (!mayDropEdits())
        return std::nullopt;
    const auto placed = put(path);
    const auto changes = placed ? reopen() : std::unexpected(placed.error());
    if (!changes) {
        m_desktop.presentError(changes.error().text(), keptSentence(placed.value_or(QString())), {});
        return std::nullopt;
    }
    // No emulator is known to have made it.
    m_defaults.setText(keys::BuiltFrom, QString());
    QStringList sentences{
        qtTrId("catalogue_used")
            .arg(QLocale().toString(static_cast<qulonglong>(m_catalogue.records().size())))};
    if (!changes->isEmpty())
        sentences << *changes;
    QString message = concluded(sentences, *placed);
    Q_EMIT statusMessage(message);
    return message;
}

bool CatalogueRebuild::mayDropEdits()
{
    if (!m_catalogue.hasChanges())
        return true;
    Alert alert;
    alert.style = Alert::Style::Warning;
    alert.message = qtTrId("catalogue_unsaved_message");
    alert.informative = qtTrId("catalogue_unsaved_info");
    alert.buttons = {qtTrId("catalogue_use"), qtTrId("cancel")};
    return m_desktop.runAlert(alert) == 0;
}

// Only a file that can be read takes the place; it may have been saved there already. Gives the name under
// which the one before is kept.
std::expected<QString, Failure> CatalogueRebuild::put(const QString& path)
{
    if (const auto stored = readStore(path); !stored)
        return std::unexpected(stored.error());
    if (QFileInfo(path).canonicalFilePath() == QFileInfo(m_catalogue.path()).canonicalFilePath())
        return {};
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::unexpected(Failure{"convert_not_read", {path, file.errorString()}});
    const QByteArray bytes = file.readAll();
    const auto kept = keepAs(m_catalogue.path(), datedName(m_catalogue.path(), m_desktop.now()));
    if (!kept)
        return std::unexpected(kept.error());
    const auto written = writeAtomically(
        m_catalogue.path(),
        std::array{std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size()))});
    if (written)
        return kept;
    if (!kept->isEmpty())
        QFile::remove(*kept);
    return std::unexpected(written.error());
}

void CatalogueRebuild::fail(const Failure& failure)
{
    letGo();
    Q_EMIT statusMessage(qtTrId("rebuild_failed"));
    m_desktop.presentError(failure.text(), QString(), {});
}

void CatalogueRebuild::letGo()
{
    m_strip.hide();
    // We are in one of its signals.
    m_build.release()->deleteLater();
    Q_EMIT runningChanged(false);
}

} // namespace tessera
