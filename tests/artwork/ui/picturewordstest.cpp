#include "artwork/ui/aspectview.h"
#include "artwork/ui/downloadpanel.h"
#include "artwork/ui/imagecandodrag.h"
#include "artwork/ui/imagewindow.h"
#include "artwork/ui/picturepane.h"
#include "artwork/ui/picturespage.h"
#include "staging.h"
#include "support/installedtexts.h"
#include "support/testmain.h"
#include "support/words.h"

#include <QCheckBox>
#include <QMenu>
#include <QPlainTextEdit>
#include <QToolButton>

using namespace tessera;
using test::PictureStaging;

/// What the windows and pages of pictures say, and how their parts look.
class PictureWordsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void thePageSaysWhatEverythingIsFor()
    {
        const test::InstalledTexts texts("en");
        const PicturesPage page(m_staging.defaults);
        QCOMPARE(
            test::wordsOf(page),
            (QStringList{
                ": Pictures",
                QString::fromUtf8(
                    ": How a game’s picture is shown, and where a missing one is downloaded from."),
                ": &Shown / for screenfolderPop",
                "screenfolderPop: Snapshot / Title Snapshot / Game Flyer / named Shown",
                ": for checkboxSuppress",
                QString::fromUtf8("checkboxSuppress: Never show the &parent’s picture for a clone"),
                ": for wholeStepsBox",
                "wholeStepsBox: Enlarge by &whole steps only, so that every pixel stays even",
                ": &Download from / for snapdownsitePop",
                ("snapdownsitePop: Picture site 1 / Picture site 2 / Picture site 3 / Other site / named "
                 "Download from"),
                ": &Host / for picturesHostField",
                "picturesHostField: named Host",
                ": Snapshot address / for snapdownTextField",
                "snapdownTextField: named Snapshot address",
                ": Title address / for titlesdownTextField",
                "titlesdownTextField: named Title address",
                ": Flyer address / for flyersdownTextField",
                "flyersdownTextField: named Flyer address",
                QString::fromUtf8(
                    ": {$gamename} stands for the set name; “.png” is added. Nothing is downloaded unless "
                    "you ask for it, and a site needs its host here first."),
            }));
    }

    void thePanelSaysWhatEverythingIsFor()
    {
        const test::InstalledTexts texts("en");
        const DownloadPanel panel;
        QCOMPARE(test::wordsOf(panel),
                 (QStringList{
                     "downloadPanel: window Picture download",
                     "downloadTextView: named Picture download",
                     "progressInd2: named Progress of the download",
                     "downloadCancelButton: Stop",
                     "downloadCloseButton: Close",
                 }));
    }

    void thePaneSaysWhatEverythingIsFor()
    {
        const test::InstalledTexts texts("en");
        const PicturePane pane(m_staging.defaults);
        QCOMPARE(test::wordsOf(pane),
                 (QStringList{
                     "imageView: named Picture of the game",
                     "buttonShot: named Next kind of picture / tip Next kind of picture",
                     "PopUpButton_aspect: named Aspect ratio / tip Aspect ratio",
                 }));
    }

    void theWindowSaysWhatItShows()
    {
        const test::InstalledTexts texts("en");
        ImageWindow window;
        window.show(QImage(1200, 90, QImage::Format_RGB32), QStringLiteral("pong.png"));
        QCOMPARE(test::wordsOf(window),
                 (QStringList{
                     "imageWindow: window pong.png",
                     "imageView2: named Picture at its own size",
                     QString::fromUtf8("imageSizeLabel: 1,200 × 90"),
                 }));
        QCOMPARE(window.imageView2->accessibleDescription(), QStringLiteral("pong.png"));
    }

    // By these the style sheet knows what is how.
    void everyPartHasItsLook()
    {
        const auto roleOf = [](const QWidget* each) { return each->property("role").toString(); };
        const DownloadPanel panel;
        QCOMPARE(roleOf(&panel), QStringLiteral("panel"));
        QVERIFY(panel.testAttribute(Qt::WA_StyledBackground));
        QCOMPARE(roleOf(panel.infomationTextView), QStringLiteral("reading"));
        QCOMPARE(roleOf(panel.folderLabel), QStringLiteral("faint"));
        const PicturePane pane(m_staging.defaults);
        QCOMPARE(roleOf(&pane), QStringLiteral("panel"));
        QVERIFY(pane.testAttribute(Qt::WA_StyledBackground));
        QCOMPARE(roleOf(pane.imageView), QStringLiteral("picture"));
        QCOMPARE(roleOf(pane.shotTextField), QStringLiteral("dim"));
        QCOMPARE(roleOf(pane.aspectPop), QStringLiteral("quiet"));
        const ImageWindow window;
        QCOMPARE(roleOf(window.findChild<QLabel*>(QStringLiteral("imageSizeLabel"))),
                 QStringLiteral("imagestrip"));
    }

    void thePagesBoxesAreKept()
    {
        PicturesPage page(m_staging.defaults);
        page.checkboxSuppress->click();
        QVERIFY(m_staging.defaults.flag(keys::Suppress_PS));
        page.wholeStepsBox->click();
        QVERIFY(m_staging.defaults.stored().flag(keys::PictureWholeSteps.name));
        m_staging.defaults.setIndex(keys::Screenfolder, 2);
        QCOMPARE(page.screenfolderPop->currentText(), QStringLiteral("Game Flyer"));
        m_staging.defaults.setIndex(keys::Snapdownsite, 3);
        QCOMPARE(page.snapdownsitePop->currentText(), QStringLiteral("Other site"));
        m_staging.defaults.revertToInitialValues();
    }

    void thePanesPictureTakesTheRoom()
    {
        PicturePane pane(m_staging.defaults);
        pane.shotTextField->setText(QStringLiteral("Snapshot"));
        pane.resize(600, 500);
        pane.show();
        QVERIFY(pane.imageView->width() > 500 && pane.imageView->height() > 400);
        QVERIFY(pane.shotTextField->y() > pane.imageView->geometry().bottom());
        QVERIFY(pane.shotTextField->x() < pane.buttonShot->x());
        QVERIFY(pane.buttonShot->geometry().right() < pane.aspectPop->x());
        // What is between them is free.
        QVERIFY(pane.aspectPop->geometry().right() > 500);
        QVERIFY(pane.buttonShot->menu() != nullptr);
        QCOMPARE(pane.buttonShot->popupMode(), QToolButton::MenuButtonPopup);
    }

private:
    PictureStaging m_staging;
};

TESSERA_TEST(PictureWordsTest);

#include "picturewordstest.moc"
