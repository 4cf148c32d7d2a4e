// bench_typing TESSERA.XML: from a key in the search field to the painted window, against a plain repaint of
// the same window.

#include "app/program.h"
#include "app/tessera_appdelegate.h"
#include "catalogue/ui/searchfield.h"
#include "core/texts.h"
#include "platform/qt/qtdesktop.h"
#include "rounds.h"
#include "widgets/theme.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QKeyEvent>
#include <QTemporaryDir>
#include <QTranslator>

using namespace tessera;

namespace {

constexpr int rounds = 25;
constexpr int settleTime = 1500; // milliseconds; texts are folded and ROM folders read meanwhile

struct Typed {
    const char16_t* before;
    char16_t key; // the letter, or 8 for a step back
};

constexpr Typed typed[]{
    {u"", u'p'},       {u"p", u'a'},          {u"pa", u'c'},       {u"pac", u'm'},
    {u"pac", u'\b'},   {u"p", u'\b'},         {u"gradiu", u's'},   {u"street fighte", u'r'},
    {u"guradi", u'u'}, {u"maker:kona", u'm'}, {u"year:198", u'5'},
};

void press(QWidget& field, char16_t letter)
{
    const bool isBack = letter == u'\b';
    QKeyEvent event(QEvent::KeyPress, isBack ? Qt::Key_Backspace : Qt::Key_A, Qt::NoModifier,
                    isBack ? QString() : QString(QChar(letter)));
    QCoreApplication::sendEvent(&field, &event);
}

// Once, whatever has asked for it.
void paint(QWidget& window)
{
    window.update();
    QCoreApplication::sendPostedEvents();
}

void measure(MainWindow& window, const Typed& key)
{
    std::vector<double> keys;
    std::vector<double> repaints;
    for (int round = 0; round <= rounds; ++round) {
        window.searchField->setText(QString::fromUtf16(key.before));
        paint(window);
        const double one = bench::timed([&] {
            press(*window.searchField, key.key);
            paint(window);
        });
        const double other = bench::timed([&] { paint(window); });
        if (round == 0)
            continue;
        keys.push_back(one);
        repaints.push_back(other);
    }
    const double one = bench::median(keys);
    const double other = bench::median(repaints);
    std::printf("\"%s\" then %s, to the painted window / a repaint: ratio %.2f (%.2f ms / %.2f ms)\n",
                qUtf8Printable(QString::fromUtf16(key.before)),
                key.key == u'\b' ? "a step back" : qUtf8Printable(QString(QChar(key.key))), one / other, one,
                other);
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    const QTemporaryDir folder;
    const QString store = folder.filePath(QStringLiteral("Tessera.xml"));
    if (argc != 2 || !QFile::copy(QFile::decodeName(argv[1]), store)) {
        std::fputs("usage: bench_typing TESSERA.XML\n", stderr);
        return 2;
    }
    UserDefaults defaults(folder.filePath(QStringLiteral("settings.ini")));
    DefaultsController controller(defaults);
    RecentDocuments recent(controller);
    QtDesktop desktop(recent);
    theme::apply(application);
    QTranslator texts;
    installTexts(texts, QString());
    Tessera_AppDelegate delegate(desktop, controller, recent, store);
    delegate.run(QString());
    MainWindow& window = delegate.program().mainWindow;
    QElapsedTimer settling;
    for (settling.start(); settling.elapsed() < settleTime;)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
    for (const Typed& key : typed)
        measure(window, key);
    return 0;
}
