#include "artwork/ui/snapshotcontroller.h"

#include "artwork/ui/aspectview.h"
#include "artwork/ui/snapfolder.h"
#include "staging.h"
#include "support/chosengame.h"
#include "support/installedtexts.h"
#include "support/testmain.h"

#include <QSignalSpy>

using namespace tessera;
using test::PictureStaging;

namespace {

const QString noImage = QStringLiteral(":/pictures/No_image.jpg");

} // namespace

class SnapshotControllerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_staging = std::make_unique<PictureStaging>();
        m_folder = std::make_unique<SnapFolder>(m_staging->desktop, m_staging->defaults);
        m_view = std::make_unique<AspectView>(m_staging->defaults);
        m_controller = std::make_unique<SnapshotController>(
            SnapshotParts{m_staging->desktop, m_staging->defaults, *m_folder, *m_view, m_selection});
        m_selection.game = {};
        m_folder->Setsnapfolder();
    }

    void cleanup()
    {
        m_controller.reset();
        m_view.reset();
        m_folder.reset();
    }

    void theFirstFileThatThereIsWins_data()
    {
        QTest::addColumn<QStringList>("files");
        QTest::addColumn<bool>("suppress");
        QTest::addColumn<QString>("chosen");
        const QStringList all{"snap/pacman/0000.png", "snap/pacman.png", "snap/puckman/0000.png",
                              "snap/puckman.png"};
        QTest::newRow("its folder's first") << all << false << all[0];
        QTest::newRow("its own") << all.sliced(1) << false << all[1];
        QTest::newRow("its parent's folder's first") << all.sliced(2) << false << all[2];
        QTest::newRow("its parent's") << all.sliced(3) << false << all[3];
        QTest::newRow("nothing") << QStringList() << false << QString();
        QTest::newRow("its parent's suppressed") << all.sliced(2) << true << QString();
        QTest::newRow("its own, the parent's suppressed") << all << true << all[0];
    }

    void theFirstFileThatThereIsWins()
    {
        QFETCH(QStringList, files);
        QFETCH(bool, suppress);
        QFETCH(QString, chosen);
        for (const QString& file : files)
            m_staging->paint(file);
        m_staging->defaults.setFlag(keys::Suppress_PS, suppress);
        m_selection.game.parent = QStringLiteral("puckman");
        m_controller->Setsnapshot(QStringLiteral("pacman"));
        QCOMPARE(m_controller->snapimag(), chosen.isEmpty() ? noImage : m_staging->path(chosen));
    }

    void withNothingSelectedThereIsNoImage()
    {
        m_staging->paint("snap/.png");
        m_controller->showSelection();
        QCOMPARE(m_controller->snapimag(), noImage);
        QTRY_COMPARE(m_view->image().size(), QSize(640, 480));
    }

    void aPictureIsShownWhenItIsRead()
    {
        m_staging->paint("snap/pong.png", {320, 240});
        m_controller->Setsnapshot(QStringLiteral("pong"));
        QTRY_COMPARE(m_view->image().size(), QSize(320, 240));
    }

    void theKindsFolderIsSearched()
    {
        m_staging->paint("flyers/pong.png");
        m_folder->setKind(2);
        m_controller->Setsnapshot(QStringLiteral("pong"));
        QCOMPARE(m_controller->snapimag(), m_staging->path("flyers/pong.png"));
    }

    void aNameThatLeadsElsewhereFindsNothing_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("up") << "../secret";
        QTest::newRow("beneath") << "a/secret";
        QTest::newRow("absolute") << "/secret";
        QTest::newRow("end of text") << QString(QLatin1String("secret\0x", 8));
    }

    void aNameThatLeadsElsewhereFindsNothing()
    {
        QFETCH(QString, name);
        m_staging->paint("secret.png");
        m_staging->paint("snap/a/secret.png");
        m_controller->Setsnapshot(name);
        QCOMPARE(m_controller->snapimag(), noImage);
        m_selection.game.parent = name;
        m_controller->Setsnapshot(QStringLiteral("pong"));
        QCOMPARE(m_controller->snapimag(), noImage);
    }

    void aBrokenPictureIsSaidOnceAndStandsAsMissing()
    {
        QFile file(m_staging->path("snap/pong.png"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("nothing like a picture");
        file.close();
        QSignalSpy said(m_controller.get(), &SnapshotController::statusMessage);
        m_controller->Setsnapshot(QStringLiteral("pong"));
        QTRY_COMPARE(m_view->image().size(), QSize(640, 480));
        QCOMPARE(said.size(), 1);
        QCOMPARE(m_controller->snapimag(), file.fileName());
        QVERIFY(m_staging->desktop.takeTranscript().isEmpty());
    }

    void thePictureIsDescribedByItsFile()
    {
        const QString path = m_staging->paint("snap/pong.png");
        m_controller->Setsnapshot(QStringLiteral("pong"));
        QCOMPARE(m_view->accessibleDescription(), path);
        QCOMPARE(m_view->toolTip(), QString());
        m_controller->Setsnapshot(QStringLiteral("qix"));
        QCOMPARE(m_view->accessibleDescription(), QStringLiteral("picture_nopicture"));
        QCOMPARE(m_view->toolTip(), QString());
    }

    void aParentsPictureIsSaidToBeOne()
    {
        const test::InstalledTexts texts("en");
        m_staging->paint("snap/puckman.png");
        m_selection.game.parent = QStringLiteral("puckman");
        m_controller->Setsnapshot(QStringLiteral("pacman"));
        QCOMPARE(m_view->toolTip(), QStringLiteral("The picture of its parent, puckman"));
        m_controller->Setsnapshot(QStringLiteral("puckman"));
        QCOMPARE(m_view->toolTip(), QString());
    }

    void whyAPictureIsNotShownIsSaid()
    {
        const test::InstalledTexts texts("en");
        QFile file(m_staging->path("snap/<b>.png"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("nothing like a picture");
        file.close();
        QSignalSpy said(m_controller.get(), &SnapshotController::statusMessage);
        m_controller->Setsnapshot(QStringLiteral("<b>"));
        QTRY_COMPARE(said.size(), 1);
        const QString reason = said.constFirst().constFirst().toString();
        QVERIFY2(
            reason.startsWith(QString::fromUtf8("The picture “%1” cannot be shown: ").arg(file.fileName())),
            qPrintable(reason));
        QCOMPARE(m_view->accessibleDescription(), reason);
        QCOMPARE(m_view->toolTip(), QStringLiteral("<qt>%1</qt>").arg(reason.toHtmlEscaped()));
    }

    void anOldPictureStandsForTheNextOneForAMoment()
    {
        m_staging->paint("snap/pong.png", {320, 240});
        m_staging->paint("snap/qix.png", {30, 20});
        m_controller->Setsnapshot(QStringLiteral("pong"));
        QTRY_COMPARE(m_view->image().size(), QSize(320, 240));
        m_controller->setHeld(true);
        m_controller->Setsnapshot(QStringLiteral("qix"));
        QCOMPARE(m_view->image().size(), QSize(320, 240));
        QTRY_VERIFY(m_view->image().isNull());
        m_controller->setHeld(false);
        QTRY_COMPARE(m_view->image().size(), QSize(30, 20));
    }

    // The view beside it waits as long as this one would.
    void aPictureThatHasComeStays()
    {
        const QString path = m_staging->paint("snap/pong.png", {320, 240});
        AspectView other(m_staging->defaults);
        QImage before(8, 8, QImage::Format_RGB32);
        other.setImage(before);
        const test::ChosenGame nothing;
        SnapshotController beside(
            SnapshotParts{m_staging->desktop, m_staging->defaults, *m_folder, other, nothing});
        beside.setHeld(true);
        m_controller->Setsnapshot(QStringLiteral("pong"));
        beside.Setsnapshot(QStringLiteral("pong"));
        QTRY_VERIFY(other.image().isNull());
        QCOMPARE(m_view->image().size(), QSize(320, 240));
    }

    void aPictureOfNoUseAtItsSizeIsMadeSmaller()
    {
        m_staging->paint("snap/pong.png", {4096, 64});
        m_controller->Setsnapshot(QStringLiteral("pong"));
        QTRY_COMPARE(m_view->image().size(), QSize(2048, 32));
        m_staging->paint("snap/qix.png", {2048, 16});
        m_controller->Setsnapshot(QStringLiteral("qix"));
        QTRY_COMPARE(m_view->image().size(), QSize(2048, 16));
    }

    void theSelectionIsShown()
    {
        const QString path = m_staging->paint("snap/pong.png");
        m_selection.game.name = QStringLiteral("pong");
        QCOMPARE(m_controller->name(), QStringLiteral("pong"));
        m_controller->showSelection();
        QCOMPARE(m_controller->snapimag(), path);
    }

    void withoutAFolderNothingIsRevealed()
    {
        m_selection.game.name = QStringLiteral("pong");
        m_controller->display_rom_Finder();
        QCOMPARE(m_staging->desktop.takeTranscript(), QStringList{"beep"});
    }

    void aClickAsksForTheShownPicture()
    {
        ImagePreview preview;
        connect(m_controller.get(), &SnapshotController::previewRequested, this,
                [&preview](const ImagePreview& asked) { preview = asked; });
        const QString path = m_staging->paint("snap/pong/0000.png");
        m_controller->Setsnapshot(QStringLiteral("pong"));
        QTest::mouseClick(m_view.get(), Qt::LeftButton);
        QCOMPARE(preview.image_path, path);
        QCOMPARE(preview.image_name, QStringLiteral("0000.png"));
    }

    void thePictureFileIsRevealed_data()
    {
        QTest::addColumn<QString>("there");
        QTest::addColumn<QStringList>("tried");
        QTest::newRow("file") << "snap/pong.png" << QStringList{"reveal snap/pong.png"};
        QTest::newRow("folder") << "snap/pong/0000.png"
                                << QStringList{"reveal snap/pong.png", "reveal snap/pong"};
        QTest::newRow("nothing") << ""
                                 << QStringList{"reveal snap/pong.png", "reveal snap/pong", "folder snap"};
    }

    void thePictureFileIsRevealed()
    {
        QFETCH(QString, there);
        QFETCH(QStringList, tried);
        if (!there.isEmpty())
            m_staging->paint(there);
        m_selection.game.name = QStringLiteral("pong");
        m_controller->display_image_Finder();
        QCOMPARE(relative(m_staging->desktop.takeTranscript()), tried);
    }

    void theRomArchiveIsRevealed()
    {
        m_staging->defaults.setText(keys::RomsPath, m_staging->path("roms"));
        m_selection.game.name = QStringLiteral("pong");
        m_controller->display_rom_Finder();
        QCOMPARE(relative(m_staging->desktop.takeTranscript()),
                 (QStringList{"reveal roms/pong.zip", "reveal roms/pong", "folder roms", "beep"}));
    }

    void nothingSelectedRevealsNothing()
    {
        m_controller->display_image_Finder();
        m_controller->display_rom_Finder();
        QCOMPARE(m_staging->desktop.takeTranscript(), (QStringList{"beep", "beep"}));
    }

    void aNameThatLeadsElsewhereRevealsTheFolderAlone()
    {
        m_staging->paint("secret.png");
        m_selection.game.name = QStringLiteral("../secret");
        m_controller->display_image_Finder();
        QCOMPARE(relative(m_staging->desktop.takeTranscript()), QStringList{"folder snap"});
    }

private:
    QStringList relative(QStringList lines) const
    {
        return lines.replaceInStrings(m_staging->path("x").chopped(1), QString());
    }

    std::unique_ptr<PictureStaging> m_staging;
    std::unique_ptr<SnapFolder> m_folder;
    std::unique_ptr<AspectView> m_view;
    std::unique_ptr<SnapshotController> m_controller;
    test::ChosenGame m_selection;
};

TESSERA_TEST(SnapshotControllerTest);

#include "snapshotcontrollertest.moc"
