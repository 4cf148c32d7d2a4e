#include "app/windows/listwindow.h"

#include "app/windows/emptystate.h"
#include "app/windows/sidepanel.h"
#include "catalogue/ui/gametableview.h"
#include "platform/defaultscontroller.h"
#include "widgets/bar.h"
#include "widgets/plaintooltip.h"
#include "widgets/splitview_custom.h"
#include "widgets/toolbutton.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSplitter>
#include <QStackedWidget>
#include <QStatusBar>
#include <QToolButton>

namespace tessera {

namespace {

constexpr int sidePanelWidth = 300;

} // namespace

ListWindow::ListWindow(DefaultsController& defaults, GameTableView* table, const Kind& kind)
    : sidePanel(new SidePanel(defaults, QString::fromLatin1(kind.split2)))
    , factsPanel(sidePanel->factsPanel)
    , emptyState(new EmptyState)
    , m_defaults(defaults)
    , m_kind(kind)
    , m_table(table)
    , m_split(new QSplitter)
    , m_pages(new QStackedWidget)
    , m_count(statusLabel(kind.count))
    , m_message(statusLabel("messageLabel"))
{
    table->setObjectName(QLatin1StringView(kind.table));
    table->setAccessibleName(qtTrId(kind.tableName));
    table->followRowHeight(defaults);
    m_pages->addWidget(table);
    m_pages->addWidget(emptyState);
    m_message->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    statusBar()->setSizeGripEnabled(false);
}

QWidget* ListWindow::pages() const
{
    return m_pages;
}

Bar* ListWindow::makeToolRow()
{
    auto* bar = new Bar(Bar::Place::Top);
    playButton = accentButton(QStringLiteral("play"), qtTrId("main_play"));
    stopButton = toolButton(QStringLiteral("stop"), qtTrId("main_stop"));
    stopButton->setEnabled(false);
    randomButton = toolButton(QStringLiteral("random"), qtTrId("main_random"));
    bar->row()->addWidget(playButton);
    bar->row()->addWidget(stopButton);
    bar->row()->addWidget(randomButton);
    return bar;
}

void ListWindow::layOut(Bar* toolRow, QWidget* listSide)
{
    m_split->addWidget(sidePanel);
    m_split->addWidget(listSide);
    m_split->setObjectName(QLatin1StringView(m_kind.split));
    m_split->setHandleWidth(1);
    auto* limits = new SplitView_custom(this);
    limits->setSplitView(m_split);
    limits->setSplitView2(sidePanel->splitView);

    auto* content = new QWidget;
    auto* layout = new QVBoxLayout(content);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(toolRow);
    layout->addWidget(m_split, 1);
    setCentralWidget(content);
}

QLabel* ListWindow::statusLabel(const char* name)
{
    auto* label = new QLabel;
    label->setObjectName(QLatin1StringView(name));
    label->setTextFormat(Qt::PlainText);
    return label;
}

QPushButton* ListWindow::statusButton(const char* name, const QString& text)
{
    auto* button = new QPushButton(text);
    button->setObjectName(QLatin1StringView(name));
    button->setProperty("role", QStringLiteral("link"));
    button->hide();
    return button;
}

void ListWindow::showCount(std::size_t shown, std::size_t all, const QStringList& reasons)
{
    const QString total = QLocale().toString(static_cast<qulonglong>(all));
    const QString count = shown == all
        ? qtTrId(m_kind.allShown).arg(total)
        : qtTrId(m_kind.someShown).arg(QLocale().toString(static_cast<qulonglong>(shown)), total);
    m_count->setText((QStringList{count} + reasons).join(QStringLiteral("  ·  ")));
    m_pages->setCurrentWidget(shown == 0 ? static_cast<QWidget*>(emptyState) : m_table);
}

void ListWindow::showMessage(const QString& sentence)
{
    m_message->setText(sentence);
    m_message->setToolTip(plainToolTip(sentence));
}

void ListWindow::takeBack(const QString& sentence)
{
    if (m_message->text() == sentence)
        showMessage(QString());
}

void ListWindow::setRunning(bool running)
{
    stopButton->setEnabled(running);
}

void ListWindow::restore()
{
    const UserDefaults& stored = m_defaults.stored();
    m_split->setSizes({sidePanelWidth, firstSize.width() - sidePanelWidth});
    if (const auto split = stored.value(m_kind.splitKey.name))
        m_split->restoreState(split->toByteArray());
    if (const auto split = stored.value(m_kind.split2Key.name))
        sidePanel->splitView->restoreState(split->toByteArray());
    for (const ColumnWidth& each : m_kind.widths)
        m_table->setColumnWidth(each.column, each.width);
    if (const auto columns = stored.value(m_kind.columnsKey.name)) {
        // Widths and places only: the last run's sort is not this one's, not even among what is equal.
        const QSignalBlocker unsorted(m_table->horizontalHeader());
        m_table->horizontalHeader()->restoreState(columns->toByteArray());
    }
    m_table->setFocus();
}

void ListWindow::remember()
{
    m_defaults.keep(m_kind.splitKey, m_split->saveState());
    m_defaults.keep(m_kind.split2Key, sidePanel->splitView->saveState());
    m_defaults.keep(m_kind.columnsKey, m_table->horizontalHeader()->saveState());
}

void ListWindow::closeEvent(QCloseEvent* event)
{
    // Whoever hears of it decides, and hides the window.
    event->ignore();
    Q_EMIT closeRequested();
}

} // namespace tessera
