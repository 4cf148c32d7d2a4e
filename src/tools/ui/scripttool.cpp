#include "tools/ui/scripttool.h"

#include "platform/desktop.h"
#include "tools/ui/scriptpage.h"
#include "tools/ui/utilityhost.h"
#include "tools/ui/workbench.h"
#include "widgets/theme.h"

#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QPushButton>

namespace tessera {

namespace {
// By format.
constexpr std::array pictures{"script_com", "script_sh", "script_apple"};
} // namespace

ScriptTool::ScriptTool(ScriptPage& page, Workbench& workbench, UtilityHost& host, QObject* parent)
    : QObject(parent)
    , m_page(page)
    , m_workbench(workbench)
    , m_host(host)
{
    connect(m_page.button_make, &QPushButton::clicked, this, &ScriptTool::makingAction);
    connect(m_page.formatPop, &QComboBox::currentIndexChanged, this, &ScriptTool::scriptChangeAction);
    scriptChangeAction();
}

void ScriptTool::scriptChangeAction()
{
    const ScriptFormat format = scriptFormatAt(m_page.formatPop->currentIndex());
    if (format == ScriptFormat::None)
        return;
    const QString picture = QLatin1String(pictures[static_cast<std::size_t>(format)]);
    m_page.scriptimageView->setPixmap(theme::icon(picture).pixmap(m_page.scriptimageView->size()));
    m_page.scriptimageView->setAccessibleName(m_page.formatPop->currentText());
}

void ScriptTool::makingAction()
{
    if (m_workbench.isBusy())
        return m_workbench.desktop().beep();
    m_workbench.inform(scripttexts::started);
    const QString game = m_host.selectedGame().name;
    if (game.isEmpty())
        return m_workbench.refuse(scripttexts::noGame);
    m_workbench.indicator_start();
    const ScriptFormat format = scriptFormatAt(m_page.formatPop->currentIndex());
    const ScriptEmulator emulator = scriptEmulatorAt(m_page.emulatorPop->currentIndex());
    const ScriptRequest request{format,           emulator, m_host.emulatorPath(emulator),
                                QDir::homePath(), game,     options(emulator)};
    // The name alone says the format: another that the user gives is kept as it is.
    if (const auto path
        = m_workbench.desktop().savePanel({QStringLiteral("Save Script file"), fileName(format), {}}))
        save(*path, request);
    else
        m_workbench.inform(scripttexts::cancelled);
    m_workbench.indicator_stop();
}

QStringList ScriptTool::options(ScriptEmulator emulator) const
{
    if (m_page.preoptionPop->currentIndex() != 0)
        return {};
    switch (emulator) {
    case ScriptEmulator::CommandLine:
        return m_host.argumentsArray();
    case ScriptEmulator::MameOsx:
        return m_host.argumentsArray2();
    default:
        return {};
    }
}

QString ScriptTool::fileName(ScriptFormat format) const
{
    const SelectedGame game = m_host.selectedGame();
    return scriptFileName(m_page.filenamePop->currentIndex(), format,
                          {game.name, game.title, game.titlejp, m_page.emulatorPop->currentText()});
}

// A failure sounds like success: deliberate.
void ScriptTool::save(const QString& path, const ScriptRequest& request)
{
    const auto written = saveScript(path, request.format, scriptText(request));
    m_workbench.conclude(written
                             ? QString(scripttexts::saved)
                             : QString(scripttexts::notWritten).arg(path, written.error().arguments.last()));
}

} // namespace tessera
