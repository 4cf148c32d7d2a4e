#include "info/ui/historyobject.h"

#include "info/ui/historywindow.h"
#include "widgets/logview.h"
#include "platform/defaultscontroller.h"
#include "platform/desktop.h"
#include "widgets/boundcontrols.h"

#include <QCheckBox>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QToolButton>

namespace tessera {

namespace {

// Milliseconds without another selection, so that running through a list searches nothing.
constexpr int settled = 120;
constexpr int smallestSize = 4;
constexpr int largestSize = 200;

} // namespace

HistoryObject::HistoryObject(Desktop& desktop, DefaultsController& defaults, HistoryWindow& window,
                             QObject* parent)
    : QObject(parent)
    , m_desktop(desktop)
    , m_defaults(defaults)
    , m_window(window)
    , m_finder(*window.historyinfoTextView, *window.findField, *window.findCount)
    , m_history{{keys::HistoryPath, historytexts::historyMissing, historytexts::historyFailed}, {}}
    , m_info{{keys::MameinfoPath, historytexts::infoMissing, historytexts::infoFailed}, {}}
    , m_following(new QTimer(this))
{
    m_following->setSingleShot(true);
    m_following->setInterval(settled);
    connect(m_following, &QTimer::timeout, this, [this] { search(m_next); });
    connect(window.historySearchField, &QLineEdit::returnPressed, this, &HistoryObject::searchAction);
    connect(window.filedButton, &QPushButton::clicked, this, &HistoryObject::showFiled);
    connect(window.smallerButton, &QToolButton::clicked, this, &HistoryObject::makeTextSmaller);
    connect(window.biggerButton, &QToolButton::clicked, this, &HistoryObject::makeTextBigger);
    bind(*window.followBox, defaults, keys::HistoryFollows);
    connect(&defaults, &DefaultsController::changed, this, &HistoryObject::settingChanged);
    settingChanged(QString());
}

void HistoryObject::awakeFromNib()
{
    m_text.clear();
    set_histryString();
    set_infoString();
}

void HistoryObject::set_histryString()
{
    load(m_history);
}

void HistoryObject::set_infoString()
{
    load(m_info);
}

void HistoryObject::load(Loaded& which)
{
    const QString path = m_defaults.text(which.kind.key);
    if (!QFileInfo::exists(path))
        return showText(m_text + which.kind.missing);
    // A chosen path was stored first, and that has begun the load.
    if (which.isLoading && which.path == path)
        return;
    which.path = path;
    which.isLoading = true;
    m_window.showLoading(true);
    m_pool.start([this, &which, path, load = ++which.load] {
        const auto read = std::make_shared<std::expected<InfoFile, Failure>>(InfoFile::read(path));
        QMetaObject::invokeMethod(
            this, [this, &which, load, read] { takeFile(which, load, read); }, Qt::QueuedConnection);
    });
}

void HistoryObject::takeFile(Loaded& which, int load,
                             const std::shared_ptr<std::expected<InfoFile, Failure>>& read)
{
    if (load != which.load)
        return;
    which.isLoading = false;
    which.file = *read ? std::make_unique<const InfoFile>(*std::move(*read)) : nullptr;
    if (!*read)
        m_desktop.log(QString(which.kind.failed).arg(read->error().text()));
    if (isLoading())
        return;
    m_window.showLoading(false);
    if (const auto waiting = std::exchange(m_waiting, std::nullopt))
        showFound(*waiting);
}

void HistoryObject::searchHistoryInfo(const QString& name)
{
    search({name});
}

void HistoryObject::searchAction()
{
    search({m_window.historySearchField->text()});
    m_window.showParent(QString());
}

void HistoryObject::showFiled()
{
    search({m_shownName, FiledEntries::Show});
}

void HistoryObject::followTo(const QString& name, const QString& key)
{
    if (key.isEmpty())
        return;
    m_window.historySearchField->setText(name);
    m_window.showParent(key);
    m_next = {key, FiledEntries::LeaveOut, false};
    m_following->start();
}

void HistoryObject::search(const Wanted& wanted)
{
    m_following->stop();
    if (wanted.name.isEmpty()) {
        m_waiting.reset();
        m_window.showFiled(QString());
        // Not kept in m_text: a message about a missing file is appended to the last real result.
        show(historytexts::noName);
        m_window.showParent(QString());
        return;
    }
    if (isLoading()) {
        m_waiting = wanted;
        return;
    }
    showFound(wanted);
}

void HistoryObject::showFound(const Wanted& wanted)
{
    m_shownName = wanted.name;
    const HistoryText found
        = historyText({m_history.file.get(), m_info.file.get()}, wanted.name.toStdString(), wanted.filed);
    m_window.showFiled(QString::fromStdString(found.filedUnder.value_or("")));
    showText(QString::fromStdString(found.text));
    if (wanted.withSound)
        m_desktop.playSound(QStringLiteral("sound_page"));
}

void HistoryObject::showText(const QString& text)
{
    m_text = text;
    show(text);
}

void HistoryObject::show(const QString& text)
{
    m_window.historyinfoTextView->replace(text);
    m_window.historyinfoTextView->moveCursor(QTextCursor::Start);
    m_finder.mark();
}

void HistoryObject::settingChanged(const QString& name)
{
    if (name.isEmpty() || name == keys::History_fontsize.name)
        m_window.setFontSize(qBound(smallestSize, m_defaults.index(keys::History_fontsize), largestSize));
    if (name.isEmpty() || name == keys::HistoryPath.name || name == keys::MameinfoPath.name)
        m_window.showPaths(m_defaults.text(keys::HistoryPath), m_defaults.text(keys::MameinfoPath));
    for (Loaded* each : {&m_history, &m_info}) {
        if (name == each->kind.key.name)
            loadTyped(*each);
    }
}

void HistoryObject::loadTyped(Loaded& which)
{
    if (QFileInfo(m_defaults.text(which.kind.key)).isFile())
        load(which);
}

// The same limits as those of the game list: each direction is allowed from every size that the other one
// can reach.
void HistoryObject::makeTextBigger()
{
    step(1, 9, 27);
}

void HistoryObject::makeTextSmaller()
{
    step(-1, 10, 28);
}

void HistoryObject::step(int by, int smallest, int largest)
{
    const int size = m_defaults.index(keys::History_fontsize);
    if (size < smallest || size > largest)
        m_desktop.beep();
    else
        m_defaults.setIndex(keys::History_fontsize, size + by);
}

} // namespace tessera
