// bench_pictures: from a selection to its painted picture, not kept, against the image library's own decoding
// of the same file; and how long the selection itself waits for it.

#include "rounds.h"

#include "artwork/ui/aspectview.h"
#include "artwork/ui/snapfolder.h"
#include "artwork/ui/snapshotcontroller.h"
#include "platform/defaultscontroller.h"
#include "platform/qt/qtdesktop.h"
#include "platform/recentdocuments.h"

#include <QApplication>
#include <QEventLoop>
#include <QImage>
#include <QImageReader>
#include <QRandomGenerator>
#include <QTemporaryDir>

namespace {

using namespace tessera;

constexpr int pictures = 40;
constexpr QSize size(640, 540); // about 1 MB

// Noise: nothing of it can be left out.
void paint(const QString& path)
{
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x)
            line[x] = QRandomGenerator::global()->generate() | 0xff000000;
    }
    if (!image.save(path))
        qFatal("no picture");
}

/// Tells when a picture was painted that had not been there before.
class WatchedView : public AspectView
{
public:
    using AspectView::AspectView;
    qint64 painted = 0; ///< the picture's number

protected:
    void paintEvent(QPaintEvent* event) override
    {
        AspectView::paintEvent(event);
        painted = image().cacheKey();
    }
};

/// One game after the other.
struct Neighbours : GameSelection {
    int at = 0;

    SelectedGame selected() const override { return {QString::number(at % pictures), {}, {}}; }
};

} // namespace

int main(int argc, char* argv[])
{
    const QApplication application(argc, argv);
    const QTemporaryDir folder;
    for (int i = 0; i < pictures; ++i)
        paint(folder.filePath(QStringLiteral("%1.png").arg(i)));
    UserDefaults stored(folder.filePath(QStringLiteral("settings.ini")));
    DefaultsController defaults(stored);
    defaults.setInitialValues(QString(), QString());
    defaults.setText(keys::SnapPath, folder.path());
    RecentDocuments recent(defaults);
    QtDesktop desktop(recent);
    SnapFolder snaps(desktop, defaults);
    snaps.Setsnapfolder();
    WatchedView view(defaults);
    view.resize(276, 207);
    view.show();
    Neighbours selection;
    SnapshotController controller({desktop, defaults, snaps, view, selection});

    const auto select = [&] {
        const qint64 before = view.painted;
        ++selection.at;
        controller.showSelection();
        while (view.painted == before || view.painted != view.image().cacheKey())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    };
    int read = 0;
    const auto decode = [&] {
        if (QImageReader(folder.filePath(QStringLiteral("%1.png").arg(read++ % pictures))).read().isNull())
            qFatal("no picture");
    };
    bench::compare("selection to painted picture / decoding it", select, decode);

    // Without the wait: what holding an arrow key costs for each row.
    const auto step = [&] {
        ++selection.at;
        controller.showSelection();
    };
    bench::compare("selection itself / decoding its picture", step, decode);
}
