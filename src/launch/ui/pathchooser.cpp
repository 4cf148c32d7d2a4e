#include "launch/ui/pathchooser.h"

#include "core/message.h"
#include "launch/emulatorchoice.h"
#include "platform/defaultscontroller.h"
#include "platform/desktop.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLineEdit>

#include <algorithm>

namespace tessera {

namespace {

// A row of the chooser family.
struct Member {
    QLatin1StringView key;
    bool isFolder;
    const char* startsIn; ///< this folder beside the emulator, and then only the file's name is kept
    const char* title; ///< of the panel
    const char* kind; ///< extensions, where the kind of file is known
};

// clang-format off
constexpr std::array members{
    Member{keys::ExecutionPath.name,    false, nullptr,   textKey("choose_emulator"),    nullptr},
    Member{keys::MameosxPath.name,      false, nullptr,   textKey("choose_osx"),         nullptr},
    Member{keys::ApplicationPath.name,  false, nullptr,   textKey("choose_application"), nullptr},
    Member{keys::RomsPath.name,         true,  nullptr,   textKey("choose_roms"),        nullptr},
    Member{keys::SnapPath.name,         true,  nullptr,   textKey("choose_snap"),        nullptr},
    Member{keys::TitlesnapPath.name,    true,  nullptr,   textKey("choose_titles"),      nullptr},
    Member{keys::GameflyersPath.name,   true,  nullptr,   textKey("choose_flyers"),      nullptr},
    Member{keys::HistoryPath.name,      false, nullptr,   textKey("choose_history"),     "dat xml"},
    Member{keys::MameinfoPath.name,     false, nullptr,   textKey("choose_mameinfo"),    "dat"},
    Member{keys::Playbackfilename.name, false, "inp",     textKey("choose_playback"),    "inp"},
    Member{keys::Effectname.name,       false, "artwork", textKey("choose_effect"),      "png"},
};

struct RecordFile {
    const char* title;
    const char* name; ///< proposed
    QLatin1StringView key;
};

// By tag.
constexpr std::array recordFiles{
    RecordFile{textKey("record_save"),     "",                 {}},
    RecordFile{textKey("record_save_wav"), "Sound_record.wav", keys::Wavfilename.name},
    RecordFile{textKey("record_save_mng"), "Movie_record.mng", keys::Mngfilename.name},
    RecordFile{textKey("record_save_avi"), "Movie_record.avi", keys::Avifilename.name},
};

using Select = void (PathChooser::*)();
struct AlertRow {
    const char* message;
    const char* informative;
    const char* otherButton; ///< nullptr where there is "OK" alone
    Select select;
};

// By number, from 1. Deliberate: three share one informative text.
constexpr std::array alertRows{
    AlertRow{textKey("alert_Message1"), textKey("alert_Info1"), textKey("cancel"),  &PathChooser::exeSelect},
    AlertRow{textKey("alert_Message2"), textKey("alert_Info1"), textKey("cancel"),  &PathChooser::osxSelect},
    AlertRow{textKey("alert_Message3"), textKey("alert_Info1"), textKey("cancel"),  &PathChooser::appSelect},
    AlertRow{textKey("alert_Message4"), textKey("alert_Info4"), nullptr,            nullptr},
    AlertRow{textKey("alert_Message5"), textKey("alert_Info5"), textKey("disable"), &PathChooser::romfolSelect},
};

// By tag, and the first three by launch mode.
constexpr std::array shownPaths{
    keys::ExecutionPath.name, keys::MameosxPath.name, keys::ApplicationPath.name,
    keys::HistoryPath.name,   keys::MameinfoPath.name,
};
// clang-format on

// Deliberate: a starting place is a URL's text, so that a path with a blank in it gives none.
QUrl startingPlace(const QString& text)
{
    const QUrl url(text, QUrl::StrictMode);
    return url.isValid() && url.scheme().isEmpty() ? QUrl::fromLocalFile(url.path()) : url;
}

} // namespace

PathChooser::PathChooser(Desktop& desktop, DefaultsController& defaults, const EmulatorChoice& emulator,
                         QObject* parent)
    : QObject(parent)
    , m_desktop(desktop)
    , m_defaults(defaults)
    , m_emulator(emulator)
{
}

QString PathChooser::openPanelpath(const PathRequest& request)
{
    OpenRequest panel;
    panel.files = request.chooseFile;
    panel.folders = request.chooseDirect;
    panel.directory = startingPlace(request.directory);
    panel.title = request.title;
    panel.kind = request.kind;
    panel.applications = request.chooseApplication;
    return m_desktop.openPanel(panel).value_or(QString());
}

// The emulator may be one that was found and never chosen.
QString PathChooser::pathAt(QLatin1StringView key) const
{
    return key == keys::ExecutionPath.name ? m_emulator.emulator() : m_defaults.text(ChosenKey{key});
}

QString PathChooser::besideEmulator(const char* folder) const
{
    return QFileInfo(pathAt(keys::ExecutionPath.name)).path() + QLatin1Char('/') + QLatin1String(folder);
}

void PathChooser::putInto(QLineEdit& field, QLatin1StringView key)
{
    connect(this, &PathChooser::chosen, &field, [&field, key](const QString& chosenKey, const QString& path) {
        if (chosenKey == key)
            field.setText(path);
    });
}

void PathChooser::select(QLatin1StringView key)
{
    const Member& member = *std::ranges::find(members, key, &Member::key);
    const bool keepsName = member.startsIn != nullptr;
    const QString path
        = openPanelpath({.chooseFile = !member.isFolder,
                         .chooseDirect = member.isFolder,
                         .directory = keepsName ? besideEmulator(member.startsIn) : QString(),
                         .title = qtTrId(member.title),
                         .kind = QString::fromLatin1(member.kind).split(u' ', Qt::SkipEmptyParts),
                         .chooseApplication = key == keys::MameosxPath.name});
    if (path.isEmpty())
        return;
    store(key, keepsName ? QFileInfo(path).fileName() : path);
}

void PathChooser::store(QLatin1StringView key, const QString& path)
{
    m_defaults.setText(ChosenKey{key}, path);
    flush();
    Q_EMIT chosen(key, path);
}

void PathChooser::flush()
{
    if (const QString failure = m_defaults.flush(); !failure.isEmpty())
        Q_EMIT statusMessage(failure);
}

void PathChooser::saveRecordfile(int tag)
{
    const bool isKnown = tag > 0 && tag < static_cast<int>(recordFiles.size());
    const RecordFile& file = recordFiles[isKnown ? static_cast<std::size_t>(tag) : 0];
    const auto path = m_desktop.savePanel({qtTrId(file.title), QString::fromLatin1(file.name), {}});
    if (!path)
        return;
    if (isKnown)
        return store(file.key, *path);
    m_desktop.beep();
    flush();
}

void PathChooser::openCurrentdir()
{
    const auto mode = m_emulator.mode();
    if (mode == EmulatorChoice::None)
        return m_desktop.beep();
    const QString path = pathAt(shownPaths[static_cast<std::size_t>(mode)]);
    if (path.isEmpty() || !m_desktop.openFolder(QFileInfo(path).path()))
        m_desktop.beep();
}

void PathChooser::takeROMfolder(const QString& folder)
{
    store(keys::RomsPath.name, folder);
}

void PathChooser::openROMfolder()
{
    openFolder(m_defaults.text(keys::RomsPath));
}

void PathChooser::openFolder(const QString& path)
{
    if (path.isEmpty() || !m_desktop.openFolder(path))
        m_desktop.beep();
}

void PathChooser::show_file_in_finder(int tag)
{
    const bool isKnown = tag >= 0 && tag < static_cast<int>(shownPaths.size());
    const QString path = isKnown ? pathAt(shownPaths[static_cast<std::size_t>(tag)]) : QString();
    if (!QFileInfo::exists(path) || !m_desktop.reveal(path))
        m_desktop.beep();
}

void PathChooser::displayAlert(int number)
{
    const AlertRow& row = alertRows[static_cast<std::size_t>(number - 1)];
    Alert alert{qtTrId(row.message), qtTrId(row.informative), {QStringLiteral("OK")}};
    if (row.otherButton != nullptr)
        alert.buttons = {qtTrId("select"), qtTrId(row.otherButton)};
    m_desktop.beep();
    if (m_desktop.runAlert(alert) == 0 && row.select != nullptr)
        (this->*row.select)();
}

void PathChooser::saveOpenRecent(const QString& path)
{
    m_desktop.noteRecent(path);
}

} // namespace tessera
