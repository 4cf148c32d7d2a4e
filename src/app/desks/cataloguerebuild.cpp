#include "app/desks/cataloguerebuild.h"

#include "app/statusline.h"
#include "app/windows/rebuildstrip.h"
#include "catalogue/catalogue.h"
#include "catalogue/ui/cataloguesaving.h"
#include "favourites/favourites.h"
#include "launch/emulatoridentity.h"
#include "launch/emulatorchoice.h"
#include "launch/ui/pathchooser.h"
#include "platform/defaultscontroller.h"
#include "catalogue/storereader.h"
#include "core/keptfile.h"
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

CatalogueRebuild::CatalogueRebuild(const Parts& parts, QObject* parent)
    : QObject(parent)
    , m_parts(parts)
{
    connect(&m_parts.strip, &RebuildStrip::cancelled, this, &CatalogueRebuild::cancel);
}

CatalogueRebuild::~CatalogueRebuild() = default;

bool CatalogueRebuild::isOutdated() const
{
    const QString builtFrom = m_parts.defaults.text(keys::BuiltFrom);
    const QString now = identityText(m_parts.emulator.emulatorNow());
    return !builtFrom.isEmpty() && !now.isEmpty() && builtFrom != now;
}

void CatalogueRebuild::rebuild()
{
    m_parts.saving.commitEditing();
    if (!isRunning() && mayReplace())
        build();
}

// Edits that were never saved are in memory only: a rebuild would drop them.
bool CatalogueRebuild::mayReplace()
{
    const QString builtFrom = m_parts.defaults.text(keys::BuiltFrom);
    const bool isSame = !m_parts.catalogue.records().empty() && !builtFrom.isEmpty()
        && builtFrom == identityText(m_parts.emulator.emulatorNow());
    Alert alert;
    alert.style = Alert::Style::Warning;
    alert.buttons = {qtTrId("rebuild_button"), qtTrId("cancel")};
    if (m_parts.catalogue.hasChanges()) {
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
    return m_parts.desktop.runAlert(alert) == 0;
}

void CatalogueRebuild::build()
{
    if (isRunning())
        return;
    if (m_parts.emulator.emulatorNow().isEmpty())
        m_parts.paths.exeSelect();
    const QString emulator = m_parts.emulator.emulatorNow();
    if (emulator.isEmpty()) {
        m_parts.status.say(qtTrId("rebuild_no_emulator"));
        return;
    }
    m_identity = identityText(emulator);
    m_build = std::make_unique<CatalogueBuild>();
    connect(m_build.get(), &CatalogueBuild::progress, &m_parts.strip, &RebuildStrip::showCount);
    connect(m_build.get(), &CatalogueBuild::finished, this, &CatalogueRebuild::finish);
    connect(m_build.get(), &CatalogueBuild::failed, this, &CatalogueRebuild::fail);
    connect(m_build.get(), &CatalogueBuild::cancelled, this, &CatalogueRebuild::stand);
    Q_EMIT runningChanged(true);
    m_parts.strip.begin(QFileInfo(emulator).fileName());
    // Japanese titles are asked for nowhere here; a list that was chosen before is used.
    m_build->start(emulator, m_parts.catalogue.path(), m_parts.defaults.text(keys::localizePath),
                   m_parts.desktop.now());
}

void CatalogueRebuild::cancel()
{
    if (isRunning())
        m_build->cancel();
}

void CatalogueRebuild::stand()
{
    letGo();
    m_parts.status.say(qtTrId("rebuild_cancelled"));
}

void CatalogueRebuild::finish(int machines)
{
    const std::optional<Failure> titlesFailure = m_build->titlesFailure();
    const QString kept = m_build->keptAs();
    StoredCatalogue built = m_build->takeStored();
    letGo();
    const QString changes = replaceBy(std::move(built));
    QStringList sentences{qtTrId("rebuild_done").arg(QLocale().toString(machines))};
    if (titlesFailure)
        sentences << Message{"rebuild_without_titles", {titlesFailure->text()}}.text();
    m_parts.defaults.setText(keys::BuiltFrom, m_identity);
    if (!changes.isEmpty())
        sentences << changes;
    m_parts.status.say(concluded(sentences, kept));
}

// In one message, as the next one takes its place.
QString CatalogueRebuild::concluded(QStringList sentences, const QString& kept)
{
    if (!kept.isEmpty())
        sentences << keptSentence(kept);
    if (const QString failure = m_parts.defaults.flush(); !failure.isEmpty())
        sentences << failure;
    return sentences.join(QLatin1Char(' '));
}

// What differs from the catalogue before; empty where that one was empty.
QString CatalogueRebuild::replaceBy(StoredCatalogue content)
{
    const StoredCatalogue before = m_parts.catalogue.replace(std::move(content));
    CatalogueComparison comparison;
    if (!before.records.empty())
        comparison
            = compareCatalogues(before.records, m_parts.catalogue.records(), m_parts.favourites.names());
    Q_EMIT compared(comparison);
    return before.records.empty() ? QString() : comparisonSummary(comparison);
}

std::optional<QString> CatalogueRebuild::useFile(const QString& path)
{
    if (isRunning()) {
        m_parts.desktop.beep();
        return std::nullopt;
    }
    if (!mayDropEdits())
        return std::nullopt;
    auto placed = put(path);
    if (!placed) {
        m_parts.desktop.presentError(placed.error().text(), QString(), {});
        return std::nullopt;
    }
    const QString changes = replaceBy(std::move(placed->content));
    // No emulator is known to have made it.
    m_parts.defaults.setText(keys::BuiltFrom, QString());
    QStringList sentences{
        qtTrId("catalogue_used")
            .arg(QLocale().toString(static_cast<qulonglong>(m_parts.catalogue.records().size())))};
    if (!changes.isEmpty())
        sentences << changes;
    QString message = concluded(sentences, placed->kept);
    m_parts.status.say(message);
    return message;
}

bool CatalogueRebuild::mayDropEdits()
{
    if (!m_parts.catalogue.hasChanges())
        return true;
    Alert alert;
    alert.style = Alert::Style::Warning;
    alert.message = qtTrId("catalogue_unsaved_message");
    alert.informative = qtTrId("catalogue_unsaved_info");
    alert.buttons = {qtTrId("catalogue_use"), qtTrId("cancel")};
    return m_parts.desktop.runAlert(alert) == 0;
}

// Only a file that can be read takes the place; it may have been saved there already.
std::expected<CatalogueRebuild::Placed, Failure> CatalogueRebuild::put(const QString& path)
{
    // A pipe would be waited for without end.
    if (const QFileInfo info(path); !info.isFile())
        return std::unexpected(
            Failure{info.exists() ? "failure_store_nofile" : "failure_store_missing", {path}});
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::unexpected(Failure{"convert_not_read", {path, file.errorString()}});
    const QByteArray bytes = file.readAll();
    const std::string_view text(bytes.constData(), static_cast<std::size_t>(bytes.size()));
    auto stored = readStoreText(text, path);
    if (!stored)
        return std::unexpected(stored.error());
    const QString place = m_parts.catalogue.path();
    if (QFileInfo(path).canonicalFilePath() == QFileInfo(place).canonicalFilePath())
        return Placed{std::move(*stored), QString()};
    const auto kept = KeptFile(place).write(text, m_parts.desktop.now());
    if (!kept)
        return std::unexpected(kept.error());
    return Placed{std::move(*stored), *kept};
}

void CatalogueRebuild::fail(const Failure& failure)
{
    letGo();
    m_parts.status.say(qtTrId("rebuild_failed"));
    m_parts.desktop.presentError(failure.text(), QString(), {});
}

void CatalogueRebuild::letGo()
{
    m_parts.strip.hide();
    // We are in one of its signals.
    m_build.release()->deleteLater();
    Q_EMIT runningChanged(false);
}

} // namespace tessera
