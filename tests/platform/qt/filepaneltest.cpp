#include "platform/qt/filepanel.h"

#include "core/texts.h"
#include "platform/qt/qtdesktop.h"
#include "support/testmain.h"

#include <QAction>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>
#include <QToolButton>
#include <QTreeView>

using namespace tessera;

/// The real panels, used as a person would; what runs while one is open is handed over with it.
class FilePanelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        // A panel remembers where it was.
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(m_home.path()));
    }

    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        for (const char* folder : {"plain/deep", "My App.app/Contents/MacOS", "empty"})
            QVERIFY(QDir(m_folder->path()).mkpath(QLatin1StringView(folder)));
        for (const char* file : {"one.dat", "two.txt", "My App.app/Contents/Info.plist", "plain/three.dat"}) {
            QFile made(path(file));
            QVERIFY(made.open(QIODevice::WriteOnly) && made.write("text") > 0);
        }
    }

    void aFileIsChosen()
    {
        QCOMPARE(open(filesHere(), [] { pick("one.dat"); }), path("one.dat"));
        QCOMPARE(open(filesHere(), [] { type("two.txt"); }), path("two.txt"));
        QCOMPARE(open(filesHere(), [this] { type(path("plain/three.dat")); }), path("plain/three.dat"));
        QCOMPARE(open(filesHere(), [] { panel()->reject(); }), std::nullopt);
    }

    void whereFilesAreChosenAFolderIsEntered()
    {
        const auto chosen = open(filesHere(), [this] {
            type("plain");
            QCOMPARE(panel()->directory().absolutePath(), path("plain"));
            pick("three.dat");
        });
        QCOMPARE(chosen, path("plain/three.dat"));
    }

    void aFolderIsChosen()
    {
        const OpenRequest request{.files = false, .folders = true, .directory = here()};
        QCOMPARE(open(request, [] { pick("plain"); }), path("plain"));
        // Nothing named is the folder that is shown.
        QCOMPARE(open(request, [] { press(); }), m_folder->path());
    }

    void theFolderThatIsTypedIsTheOneThatIsChosen_data()
    {
        QTest::addColumn<QString>("selected");
        QTest::addColumn<QString>("typed");
        QTest::newRow("a whole path") << "" << "plain/deep";
        QTest::newRow("another one is selected") << "empty" << "plain/deep";
        QTest::newRow("the shown one's parent") << "empty" << "..";
        QTest::newRow("with a slash") << "empty" << "plain/";
    }

    void theFolderThatIsTypedIsTheOneThatIsChosen()
    {
        QFETCH(QString, selected);
        QFETCH(QString, typed);
        const QString wanted = QDir::cleanPath(path(typed));
        const QString written = typed.startsWith(u'.') ? typed : path(typed);
        const auto chosen = open({.files = false, .folders = true, .directory = here()}, [selected, written] {
            if (!selected.isEmpty())
                select(selected);
            type(written);
        });
        QCOMPARE(chosen, wanted);
    }

    void theHomeFolderIsATilde()
    {
        QCOMPARE(open({.files = false, .folders = true, .directory = here()}, [] { type("~"); }),
                 QDir::homePath());
    }

    void anApplicationThatIsAFolderIsChosen_data()
    {
        QTest::addColumn<QString>("how");
        for (const char* how : {"selected", "typed", "double click"})
            QTest::newRow(how) << how;
    }

    void anApplicationThatIsAFolderIsChosen()
    {
        QFETCH(QString, how);
        OpenRequest request = filesHere();
        request.applications = true;
        const auto chosen = open(request, [this, how] {
            if (how == "selected")
                pick("My App.app");
            else if (how == "typed")
                type(path("My App.app"));
            else
                QTest::mouseDClick(list()->viewport(), Qt::LeftButton, {}, select("My App.app"));
        });
        QCOMPARE(chosen, path("My App.app"));
        // Another folder is none, and a file is one still.
        const auto file = open(request, [this] {
            type("plain");
            QCOMPARE(panel()->directory().absolutePath(), path("plain"));
            pick("three.dat");
        });
        QCOMPARE(file, path("plain/three.dat"));
    }

    void withoutBeingAskedForAnApplicationIsAFolder()
    {
        const auto chosen = open(filesHere(), [this] {
            type("My App.app");
            QCOMPARE(panel()->directory().absolutePath(), path("My App.app"));
            panel()->reject();
        });
        QCOMPARE(chosen, std::nullopt);
    }

    void filesAndFoldersAreChosenWhereBothAreAskedFor()
    {
        const OpenRequest request{.folders = true, .directory = here()};
        QCOMPARE(open(request, [] { pick("plain"); }), path("plain"));
        QCOMPARE(open(request, [] { pick("one.dat"); }), path("one.dat"));
        QCOMPARE(open(request, [this] { type(path("plain/deep")); }), path("plain/deep"));
    }

    void aStartingPlaceThatIsNotThereIsNone()
    {
        const auto start = [this](const QUrl& place) {
            QString shown;
            open({.directory = place}, [&shown] {
                shown = panel()->directory().absolutePath();
                panel()->reject();
            });
            return shown;
        };
        QCOMPARE(start(QUrl::fromLocalFile(path("plain"))), path("plain"));
        QCOMPARE(start(QUrl::fromLocalFile(path("not/there"))), path("plain"));
        QCOMPARE(start(QUrl::fromLocalFile(path("one.dat"))), path("plain"));
        QCOMPARE(start(QUrl("http://a.test/b")), path("plain"));
    }

    void thePanelSaysWhatIsChosen()
    {
        OpenRequest request = filesHere();
        request.title = QStringLiteral("Choose the history file");
        request.kind = QStringList{"dat", "xml"};
        open(request, [] {
            QCOMPARE(panel()->windowTitle(), QStringLiteral("Choose the history file"));
            // Everything at first; the kind is offered.
            QCOMPARE(panel()->nameFilters(), (QStringList{"panel_all_files (*)", "*.dat *.xml"}));
            QTRY_VERIFY(index("two.txt").isValid());
            auto* kinds = panel()->findChild<QComboBox*>("fileTypeCombo");
            kinds->setCurrentIndex(1);
            Q_EMIT kinds->activated(1);
            Q_EMIT kinds->textActivated(kinds->currentText());
            QTRY_VERIFY(!index("two.txt").isValid());
            QVERIFY(index("one.dat").isValid() && index("plain").isValid());
            panel()->reject();
        });
    }

    void onlyWhatIsAcceptedIsShown()
    {
        OpenRequest request = filesHere();
        request.extensions = QStringList{"dat"};
        open(request, [] {
            QTRY_VERIFY(index("one.dat").isValid());
            QTRY_VERIFY(!index("two.txt").isValid());
            panel()->reject();
        });
    }

    void aFileIsSavedUnderItsName()
    {
        const SaveRequest request{"Save it", "list.txt", {"txt"}};
        const auto chosen = save(request, [this] {
            QCOMPARE(panel()->windowTitle(), QStringLiteral("Save it"));
            QCOMPARE(name()->text(), QStringLiteral("list.txt"));
            type(path("mine"));
        });
        QCOMPARE(chosen, path("mine.txt"));
    }

    void replacingAFileAsksFirst()
    {
        for (const auto answer : {QMessageBox::No, QMessageBox::Yes}) {
            const auto chosen = save({"Save it", "two.txt", {"txt"}}, [this, answer] {
                auto* shown = panel();
                int asked = 0;
                QTimer watch;
                connect(&watch, &QTimer::timeout, &watch, [answer, &asked] {
                    if (auto* question = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                        ++asked;
                        question->button(answer)->click();
                    }
                });
                watch.start(10);
                type(path("two.txt"));
                QCOMPARE(asked, 1);
                if (answer == QMessageBox::No)
                    shown->reject();
            });
            QCOMPARE(chosen.has_value(), answer == QMessageBox::Yes);
        }
    }

    void noFileIsRemovedOrRenamed()
    {
        open(filesHere(), [this] {
            select("one.dat");
            list()->setFocus();
            QVERIFY(QTest::qWaitForWindowActive(panel()));
            QTimer::singleShot(0, this, [] {
                if (auto* question = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()))
                    question->button(QMessageBox::Yes)->click();
            });
            QTest::keyClick(list(), Qt::Key_Delete);
            QTest::keyClick(list(), Qt::Key_F2);
            QVERIFY(list()->findChild<QLineEdit*>() == nullptr);
            for (auto* action : panel()->findChildren<QAction*>()) {
                if (action->objectName() == "qt_delete_action" || action->objectName() == "qt_rename_action")
                    QVERIFY(!action->isVisible());
            }
            QCOMPARE(list()->dragDropMode(), QAbstractItemView::NoDragDrop);
            panel()->reject();
        });
        QVERIFY(QFile::exists(path("one.dat")));
    }

    void aFolderCanBeMade()
    {
        const QStringList before = folders();
        open(filesHere(), [this] {
            auto* button = panel()->findChild<QToolButton*>("newFolderButton");
            QVERIFY(button->isVisible() && button->isEnabled());
            button->click();
            QTRY_VERIFY(list()->findChild<QLineEdit*>() != nullptr);
            auto* editor = list()->findChild<QLineEdit*>();
            editor->setText("mine");
            QTest::keyClick(editor, Qt::Key_Return);
            QTRY_VERIFY(folders().contains("mine"));
            panel()->reject();
        });
        QCOMPARE(folders().size(), before.size() + 1);
    }

    void thePanelSpeaksTheUsersLanguage()
    {
        const auto lookIn = [this] {
            QString text;
            open(filesHere(), [&text] {
                text = panel()->findChild<QLabel*>("lookInLabel")->text();
                panel()->reject();
            });
            return text;
        };
        QCOMPARE(lookIn(), QStringLiteral("Look in:"));
        QTranslator toolkit;
        installToolkitTexts(toolkit, QStringLiteral("ja"));
        QCOMPARE(lookIn(), QStringLiteral("アドレス:"));
        QTranslator english;
        QCoreApplication::removeTranslator(&toolkit);
        installToolkitTexts(english, QStringLiteral("en"));
        QCOMPARE(lookIn(), QStringLiteral("Look in:"));
    }

private:
    QString path(const QString& name) const { return m_folder->filePath(name); }
    QUrl here() const { return QUrl::fromLocalFile(m_folder->path()); }
    OpenRequest filesHere() const { return {.directory = here()}; }
    QStringList folders() const
    {
        return QDir(m_folder->path()).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    }

    static QFileDialog* panel() { return qobject_cast<QFileDialog*>(QApplication::activeModalWidget()); }
    static QTreeView* list() { return panel()->findChild<QTreeView*>("treeView"); }
    static QLineEdit* name() { return panel()->findChild<QLineEdit*>("fileNameEdit"); }

    static QModelIndex index(const QString& item)
    {
        const QAbstractItemModel& model = *list()->model();
        const QModelIndex root = list()->rootIndex();
        for (int row = 0; row < model.rowCount(root); ++row) {
            if (model.index(row, 0, root).data().toString() == item)
                return model.index(row, 0, root);
        }
        return {};
    }

    // Where it lies.
    static QPoint select(const QString& item)
    {
        if (!QTest::qWaitFor([&] { return index(item).isValid(); }))
            qFatal("not shown: %s", qPrintable(item));
        list()->scrollTo(index(item));
        const QPoint at = list()->visualRect(index(item)).center();
        QTest::mouseClick(list()->viewport(), Qt::LeftButton, {}, at);
        return at;
    }

    static void press()
    {
        auto* box = panel()->findChild<QDialogButtonBox*>("buttonBox");
        QPushButton* button = box->button(QDialogButtonBox::Open);
        if (button == nullptr)
            button = box->button(QDialogButtonBox::Save);
        QVERIFY(QTest::qWaitFor([&] { return button->isEnabled(); }));
        QTest::mouseClick(button, Qt::LeftButton);
    }

    static void pick(const QString& item)
    {
        select(item);
        press();
    }

    static void type(const QString& text)
    {
        name()->setFocus();
        // Not key by key: what the field proposes meanwhile would take the click.
        name()->setText(text);
        press();
    }

    // Whatever is done with a panel closes it.
    template <class Run>
    std::optional<QString> during(const std::function<void()>& use, Run run)
    {
        QTimer::singleShot(0, this, [use] {
            use();
            while (auto* left = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
                QTest::qFail(qPrintable("still open: " + left->windowTitle()), __FILE__, __LINE__);
                left->reject();
            }
        });
        return run();
    }

    std::optional<QString> open(const OpenRequest& request, const std::function<void()>& use)
    {
        return during(use, [&] { return FilePanel(request, nullptr).run(); });
    }

    std::optional<QString> save(const SaveRequest& request, const std::function<void()>& use)
    {
        return during(use, [&] { return FilePanel(request, nullptr).run(); });
    }

    QTemporaryDir m_home;
    std::unique_ptr<QTemporaryDir> m_folder;
};

TESSERA_TEST(FilePanelTest);
#include "filepaneltest.moc"
