#include "platform/qt/qtdesktop.h"

#include "support/needed.h"
#include "support/testmain.h"

#include <QDBusConnection>
#include <QDBusVirtualObject>
#include <QDBusMessage>
#include <QDesktopServices>
#include <QFileDialog>
#include <QLineEdit>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QThread>
#include <QTimer>
#include <QUrl>

using namespace tessera;

namespace {

/// What the desktop is asked to open.
class UrlHandler : public QObject
{
    Q_OBJECT

public:
    UrlHandler()
    {
        for (const char* scheme : {"file", "http"})
            QDesktopServices::setUrlHandler(QLatin1StringView(scheme), this, "open");
    }
    ~UrlHandler() override
    {
        for (const char* scheme : {"file", "http"})
            QDesktopServices::unsetUrlHandler(QLatin1StringView(scheme));
    }

    QList<QUrl> opened;

public Q_SLOTS:
    void open(const QUrl& url) { opened << url; }
};

/// A file manager on the session bus.
class FileManager : public QDBusVirtualObject
{
    Q_OBJECT

public:
    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override
    {
        if (message.member() != QStringLiteral("ShowItems"))
            return false;
        shown << message.arguments().at(0).toStringList();
        connection.send(message.createReply());
        return true;
    }

    QStringList shown;
};

} // namespace

/// The real desktop: what it starts, and what it hands to other programs.
class QtDesktopTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        // The machine's own session stays out of it.
        qunsetenv("DBUS_SESSION_BUS_ADDRESS");
        const QString program = QStandardPaths::findExecutable("dbus-daemon");
        if (program.isEmpty()) {
            qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere/bus");
            return;
        }
        m_bus.start(program, {"--session", "--nofork", "--print-address"});
        QVERIFY(m_bus.waitForReadyRead());
        qputenv("DBUS_SESSION_BUS_ADDRESS", m_bus.readLine().trimmed());
    }

    void cleanupTestCase()
    {
        m_bus.terminate();
        m_bus.waitForFinished();
    }

    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_stored = std::make_unique<UserDefaults>(path("settings.ini"));
        m_controller = std::make_unique<DefaultsController>(*m_stored);
        m_recent = std::make_unique<RecentDocuments>(*m_controller);
        m_desktop = std::make_unique<QtDesktop>(*m_recent);
    }

    void withoutAFileManagerRevealingOpensTheFolder()
    {
        UrlHandler handler;
        const QString file = made("a file.dat");
        QVERIFY(m_desktop->reveal(file));
        QCOMPARE(handler.opened, QList<QUrl>{QUrl::fromLocalFile(m_folder->path())});
        QVERIFY(!m_desktop->reveal(path("missing")));
        QCOMPARE(handler.opened.size(), 1);
    }

    void theFileManagerSelectsWhatIsRevealed()
    {
        TESSERA_NEEDS(m_bus.state() == QProcess::Running, "dbus-daemon");
        // On a connection of its own, as another program would have it; answered on another thread.
        FileManager manager;
        QThread thread;
        manager.moveToThread(&thread);
        thread.start();
        const QString address = QString::fromLocal8Bit(qgetenv("DBUS_SESSION_BUS_ADDRESS"));
        QDBusConnection other = QDBusConnection::connectToBus(address, "manager");
        QVERIFY(other.registerVirtualObject("/org/freedesktop/FileManager1", &manager));
        QVERIFY(other.registerService("org.freedesktop.FileManager1"));
        UrlHandler handler;
        const QString file = made("a file.dat");
        const bool revealed = m_desktop->reveal(file);
        QDBusConnection::disconnectFromBus("manager");
        thread.quit();
        thread.wait();
        QVERIFY(revealed);
        QCOMPARE(manager.shown, QStringList{QUrl::fromLocalFile(file).toString()});
        QVERIFY(handler.opened.isEmpty());
    }

    void aFolderIsOpened()
    {
        UrlHandler handler;
        QVERIFY(m_desktop->openFolder(m_folder->path()));
        QCOMPARE(handler.opened, QList<QUrl>{QUrl::fromLocalFile(m_folder->path())});
        QVERIFY(!m_desktop->openFolder(made("file")));
        QVERIFY(!m_desktop->openFolder(path("missing")));
        QCOMPARE(handler.opened.size(), 1);
    }

    void aPageIsOpened()
    {
        UrlHandler handler;
        QVERIFY(m_desktop->openUrl(QUrl("http://a.test/b")));
        QCOMPARE(handler.opened, QList<QUrl>{QUrl("http://a.test/b")});
    }

    void aFileIsOpenedWithAProgram_data()
    {
        QTest::addColumn<bool>("byEntry");
        QTest::newRow("an executable") << false;
        QTest::newRow("a desktop entry") << true;
    }

    void aFileIsOpenedWithAProgram()
    {
        QFETCH(bool, byEntry);
        const QString program = made("player",
                                     "#!/bin/sh\n{ pwd; printf '%s\\n' \"$@\"; } > \"$0.part\"\n"
                                     "mv \"$0.part\" \"$0.told\"\n");
        QVERIFY(QFile::setPermissions(program, QFile::ReadOwner | QFile::ExeOwner));
        const QString entry
            = made("player.desktop",
                   "[Desktop Entry]\nType=Application\nExec=\"" + program.toUtf8() + "\" --play %f\n");
        const QString file = made("a game.zip");
        QVERIFY(m_desktop->openWith(file, byEntry ? entry : program));
        QTRY_VERIFY(QFile::exists(path("player.told")));
        QFile told(path("player.told"));
        QVERIFY(told.open(QIODevice::ReadOnly));
        const QByteArray arguments = (byEntry ? "--play\n" : "") + file.toUtf8() + '\n';
        QCOMPARE(told.readAll(), m_folder->path().toUtf8() + '\n' + arguments);
    }

    void whatCannotBeStartedIsTold()
    {
        const QString file = made("game.zip");
        QVERIFY(!m_desktop->openWith(file, path("missing")));
        QVERIFY(!m_desktop->openWith(file, path("missing.desktop")));
        QVERIFY(!m_desktop->openWith(file, made("empty.desktop", "[Desktop Entry]\n")));
        QVERIFY(!m_desktop->openWith(file, made("not executable")));
    }

    void thePanelsAreModalAndAnswer()
    {
        const QString file = made("one.dat");
        const auto answer = [](const QString& path) {
            QTimer::singleShot(0, qApp, [path] {
                auto* panel = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
                QVERIFY(panel != nullptr);
                auto* name = panel->findChild<QLineEdit*>("fileNameEdit");
                name->setText(path);
                QTest::keyClick(name, Qt::Key_Return);
            });
        };
        answer(file);
        QCOMPARE(m_desktop->openPanel({}), file);
        answer(path("two.dat"));
        QCOMPARE(m_desktop->savePanel({"Save", "list.dat", {"dat"}}), path("two.dat"));
    }

    void whatWasOpenedIsNoted()
    {
        m_desktop->noteRecent(path("a.zip"));
        QCOMPARE(m_recent->paths(), QStringList{path("a.zip")});
    }

private:
    QString path(const QString& name) const { return m_folder->filePath(name); }

    QString made(const QString& name, const QByteArray& bytes = "bytes") const
    {
        QFile file(path(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("cannot be written");
        return file.fileName();
    }

    QProcess m_bus;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<UserDefaults> m_stored;
    std::unique_ptr<DefaultsController> m_controller;
    std::unique_ptr<RecentDocuments> m_recent;
    std::unique_ptr<QtDesktop> m_desktop;
};

TESSERA_TEST(QtDesktopTest);
#include "qtdesktoptest.moc"
