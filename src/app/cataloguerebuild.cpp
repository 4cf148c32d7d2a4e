#include "app/cataloguerebuild.h"

#include "app/rebuildstrip.h"
#include "catalogue/catalogue.h"
#include "launch/emulatoridentity.h"
#include "platform/defaultscontroller.h"
#include "platform/desktop.h"
#include "tools/cataloguebuild.h"
#include "core/keptcopy.h"

#include <QFileInfo>
#include <QLocale>

namespace tessera {

namespace {

QString identityText(const QString& emulator)
{
    const auto identity = EmulatorIdentity::of(emulator);
    return identity ? identity->text() : QString();
}

} // namespace

CatalogueRebuild::CatalogueRebuild(Catalogue& catalogue, Desktop& desktop, DefaultsController& defaults,
                                   RebuildStrip& strip, std::function<QString()> emulator,
                                   std::function<void()> chooseEmulator, QObject* parent)
    : QObject(parent)
    , m_catalogue(catalogue)
    , m_desktop(desktop)
    , m_defaults(defaults)
    , m_strip(strip)
    , m_emulator(std::move(emulator))
    , m_chooseEmulator(std::move(chooseEmulator))
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
    letGo();
    if (const auto opened = m_catalogue.open(); !opened) {
        m_desktop.presentError(opened.error().text(), QString(), {});
        return;
    }
    // In one message, as the next one takes its place.
    QStringList sentences{qtTrId("rebuild_done").arg(QLocale().toString(machines))};
    if (titlesFailure)
        sentences << Failure{"rebuild_without_titles", {titlesFailure->text()}}.text();
    m_defaults.setText(keys::BuiltFrom, m_identity);
    UserDefaults& settings = m_defaults.defaults();
    if (!settings.synchronize())
        sentences << Failure{"failure_settings", {settings.path()}}.text();
    Q_EMIT statusMessage(sentences.join(QLatin1Char(' ')));
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
