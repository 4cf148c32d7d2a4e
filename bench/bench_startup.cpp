// From exec to the painted list, and what is resident then: Tessera against a bare program that shows a
// QTableView with the same visible rows, fonts and style sheet.
//
//   bench_startup CATALOGUE
//
// The parent starts each in turns, as a process of its own; a child says at its first painted rows what it
// holds, and ends.

#include "app/program.h"
#include "app/tessera_appdelegate.h"
#include "catalogue/storereader.h"
#include "catalogue/ui/gametableview.h"
#include "platform/defaultscontroller.h"
#include "platform/qt/qtdesktop.h"
#include "rounds.h"
#include "widgets/theme.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QHeaderView>
#include <QProcess>
#include <QStandardItemModel>
#include <QTableView>
#include <QTemporaryDir>
#include <QTranslator>

using namespace tessera;

namespace {

constexpr int rounds = 15;
constexpr int visibleRows = 40;

double residentMegabytes()
{
    QFile file(QStringLiteral("/proc/self/smaps_rollup"));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray& line : file.readAll().split('\n')) {
        if (line.startsWith("Rss:"))
            return line.mid(4).trimmed().split(' ').constFirst().toDouble() / 1024;
    }
    return 0;
}

// Ends the program once the table has been painted with rows in it.
class FirstPaint : public QObject
{
public:
    explicit FirstPaint(QAbstractItemView* view)
        : m_view(view)
    {
        view->viewport()->installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Paint && m_view->model()->rowCount() > 0)
            QMetaObject::invokeMethod(
                this,
                [] {
                    std::printf("%.2f\n", residentMegabytes());
                    std::fflush(stdout);
                    _exit(0);
                },
                Qt::QueuedConnection);
        return false;
    }

private:
    QAbstractItemView* m_view;
};

void installTexts(QTranslator& texts)
{
    if (texts.load(QStringLiteral(":/texts/tessera_en.qm")))
        QCoreApplication::installTranslator(&texts);
}

int showTessera(QApplication& application, const QString& catalogue, const QString& settings)
{
    QTranslator texts;
    installTexts(texts);
    UserDefaults defaults(settings);
    DefaultsController controller(defaults);
    RecentDocuments recent(controller);
    QtDesktop desktop(recent);
    theme::apply(application);
    Tessera_AppDelegate delegate(desktop, controller, recent, catalogue);
    delegate.run(QString());
    const FirstPaint paint(delegate.program().mainWindow.gameTable);
    return application.exec();
}

int showBare(QApplication& application, const QString& rowsFile)
{
    theme::apply(application);
    QFile file(rowsFile);
    if (!file.open(QIODevice::ReadOnly))
        return 1;
    QStandardItemModel model;
    for (const QByteArray& line : file.readAll().split('\n')) {
        QList<QStandardItem*> row;
        for (const QByteArray& cell : line.split('\t'))
            row << new QStandardItem(QString::fromUtf8(cell));
        model.appendRow(row);
    }
    theme::applyStyleSheet(application);
    QTableView view;
    view.setAlternatingRowColors(true);
    view.setShowGrid(false);
    view.verticalHeader()->hide();
    view.verticalHeader()->setDefaultSectionSize(20);
    view.setModel(&model);
    view.resize(1200, 760);
    view.show();
    const FirstPaint paint(&view);
    return application.exec();
}

struct Run {
    double milliseconds = 0;
    double megabytes = 0;
};

Run start(const QStringList& arguments)
{
    QProcess child;
    QElapsedTimer timer;
    timer.start();
    child.start(QCoreApplication::applicationFilePath(), arguments);
    child.waitForFinished();
    if (child.exitStatus() != QProcess::NormalExit || child.exitCode() != 0) {
        std::fprintf(stderr, "bench_startup: a program ended badly: %s\n",
                     child.readAllStandardError().constData());
        std::exit(1);
    }
    const double elapsed = static_cast<double>(timer.nsecsElapsed()) / 1e6;
    return {elapsed, child.readAllStandardOutput().trimmed().toDouble()};
}

bool writeVisibleRows(const QString& catalogue, const QString& rowsFile)
{
    const auto stored = readStore(catalogue);
    QFile file(rowsFile);
    if (!stored || !file.open(QIODevice::WriteOnly))
        return false;
    for (std::size_t i = 0; i < std::min<std::size_t>(visibleRows, stored->records.size()); ++i) {
        QByteArrayList cells;
        for (const Field field :
             {Field::Name, Field::Title, Field::Titlejp, Field::Year, Field::Maker, Field::Cloneof})
            cells << QByteArray(stored->records[i][field].data(),
                                static_cast<qsizetype>(stored->records[i][field].size()));
        file.write((i == 0 ? QByteArray() : QByteArray("\n")) + cells.join('\t'));
    }
    return true;
}

int compareBoth(const QString& catalogue)
{
    const QTemporaryDir folder;
    const QString rowsFile = folder.filePath(QStringLiteral("rows.tsv"));
    const QString settings = folder.filePath(QStringLiteral("settings.ini"));
    if (!writeVisibleRows(catalogue, rowsFile)) {
        std::fputs("bench_startup: the catalogue could not be read\n", stderr);
        return 1;
    }
    std::vector<double> times[2];
    std::vector<double> sizes[2];
    for (int round = 0; round <= rounds; ++round) {
        const Run runs[2]{start({QStringLiteral("--tessera"), catalogue, settings}),
                          start({QStringLiteral("--bare"), rowsFile})};
        for (int i = 0; i < 2 && round > 0; ++i) {
            times[i].push_back(runs[i].milliseconds);
            sizes[i].push_back(runs[i].megabytes);
        }
    }
    const double a = bench::median(times[0]);
    const double b = bench::median(times[1]);
    std::printf("exec to painted list: ratio %.2f (%.0f ms / %.0f ms)\n", a / b, a, b);
    std::printf("resident after the paint: %.1f MB over the bare program (%.1f MB / %.1f MB)\n",
                bench::median(sizes[0]) - bench::median(sizes[1]), bench::median(sizes[0]),
                bench::median(sizes[1]));
    return 0;
}

} // namespace

int main(int argc, char* argv[])
{
    const QByteArray mode = argc > 2 ? argv[1] : "";
    if (mode == "--tessera" || mode == "--bare") {
        QApplication application(argc, argv);
        return mode == "--tessera"
            ? showTessera(application, application.arguments()[2], application.arguments()[3])
            : showBare(application, application.arguments()[2]);
    }
    QCoreApplication application(argc, argv);
    if (argc != 2) {
        std::fputs("Usage: bench_startup CATALOGUE\n", stderr);
        return 2;
    }
    return compareBoth(application.arguments()[1]);
}
