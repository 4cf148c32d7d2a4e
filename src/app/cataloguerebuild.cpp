#include "app/cataloguerebuild.h"

#include "app/rebuildstrip.h"
#include "catalogue/catalogue.h"
#include "catalogue/ui/cataloguesaving.h"
#include "favourites/favourites.h"
#include "launch/emulatoridentity.h"
#include "launch/ui/generalpage.h"
#include "launch/ui/pathchooser.h"
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
    const QString now = identityText(m_parts.general.emulatorNow());
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
        && builtFrom == identityText(m_parts.general.emulatorNow());
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
    if (m_parts.general.emulatorNow().isEmpty())
        m_parts.paths.exeSelect();
    const QString emulator = m_parts.general.emulatorNow();
    if (emulator.isEmpty()) {
        Q_EMIT statusMessage(qtTrId("rebuild_no_emulator"));
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
                   datedName(m_parts.catalogue.path(), m_parts.desktop.now()));
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
        m_parts.desktop.presentError(changes.error().text(), keptSentence(kept), {});
        return;
    }
    QStringList sentences{qtTrId("rebuild_done").arg(QLocale().toString(machines))};
    if (titlesFailure)
        sentences << Failure{"rebuild_without_titles", {titlesFailure->text()}}.text();
    m_parts.defaults.setText(keys::BuiltFrom, m_identity);
    if (!changes->isEmpty())
        sentences << *changes;
    Q_EMIT statusMessage(concluded(sentences, kept));
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
std::expected<QString, Failure> CatalogueRebuild::reopen()
{
    // The old texts live until everybody has heard of the new ones.
    const std::vector<GameRecord> before(m_parts.catalogue.records().begin(),
                                         m_parts.catalogue.records().end());
    CatalogueComparison comparison;
    const auto compare = connect(&m_parts.catalogue, &Catalogue::replaced, this, [&] {
        if (!before.empty())
            comparison = compareCatalogues(before, m_parts.catalogue.records(), m_parts.favourites.names());
    });
    const auto opened = m_parts.catalogue.open();
    disconnect(compare);
    if (!opened)
        return std::unexpected(opened.error());
    Q_EMIT compared(comparison);
    return before.empty() ? QString() : comparisonSummary(comparison);
}

std::optional<QString> CatalogueRebuild::useFile(const QString& path)
{
    if (isRunning()) {
        m_parts.desktop.beep();
        return std::nullopt;
    }
    if (!mayDropEdits())
        return std::nullopt;
    const auto placed = put(path);
    const auto changes = placed ? reopen() : std::unexpected(placed.error());
    if (!changes) {
        m_parts.desktop.presentError(changes.error().text(), keptSentence(placed.value_or(QString())), {});
        return std::nullopt;
    }
    // No emulator is known to have made it.
    m_parts.defaults.setText(keys::BuiltFrom, QString());
    QStringList sentences{
        qtTrId("catalogue_used")
            .arg(QLocale().toString(static_cast<qulonglong>(m_parts.catalogue.records().size())))};
    if (!changes->isEmpty())
        sentences << *changes;
    QString message = concluded(sentences, *placed);
    Q_EMIT statusMessage(message);
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

// Only a file that can be read takes the place; it may have been saved there already. Gives the name under
// which the one before is kept.
std::expected<QString, Failure> CatalogueRebuild::put(const QString& path)
{
    if (const auto stored = readStore(path); !stored)
        return std::unexpected(stored.error());
    if (QFileInfo(path).canonicalFilePath() == QFileInfo(m_parts.catalogue.path()).canonicalFilePath())
        return {};
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::unexpected(Failure{"convert_not_read", {path, file.errorString()}});
    const QByteArray bytes = file.readAll();
    const auto kept
        = keepAs(m_parts.catalogue.path(), datedName(m_parts.catalogue.path(), m_parts.desktop.now()));
    if (!kept)
        return std::unexpected(kept.error());
    const auto written = writeAtomically(
        m_parts.catalogue.path(),
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
