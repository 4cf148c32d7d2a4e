#include "platform/qt/windowclosing.h"

#include "platform/qt/qtdesktop.h"
#include "support/needed.h"
#include "support/testmain.h"
#include "support/xserver.h"

#include <QSysInfo>
#include <QTemporaryDir>

#include <xcb/xcb.h>

#include <csignal>
#include <cstdlib>
#include <memory>

#include <unistd.h>

using namespace tessera;

namespace {

// A program of the X server whose windows say that they are of some process.
class Windows
{
public:
    Windows()
        : m_server(xcb_connect(nullptr, nullptr))
    {
    }
    ~Windows() { xcb_disconnect(m_server); }
    Windows(const Windows&) = delete;
    Windows& operator=(const Windows&) = delete;

    xcb_window_t add(qint64 process, bool closes = true, xcb_window_t parent = 0)
    {
        if (parent == 0)
            parent = xcb_setup_roots_iterator(xcb_get_setup(m_server)).data->root;
        const xcb_window_t window = xcb_generate_id(m_server);
        xcb_create_window(m_server, XCB_COPY_FROM_PARENT, window, parent, 0, 0, 9, 9, 0,
                          XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
        if (process > 0) {
            const auto id = static_cast<std::uint32_t>(process);
            xcb_change_property(m_server, XCB_PROP_MODE_REPLACE, window, atom("_NET_WM_PID"),
                                XCB_ATOM_CARDINAL, 32, 1, &id);
        }
        // The one that is asked for stands among others.
        const std::array protocols{atom("WM_TAKE_FOCUS"),
                                   atom(closes ? "WM_DELETE_WINDOW" : "WM_SAVE_YOURSELF")};
        xcb_change_property(m_server, XCB_PROP_MODE_REPLACE, window, atom("WM_PROTOCOLS"), XCB_ATOM_ATOM, 32,
                            protocols.size(), protocols.data());
        sync();
        return window;
    }

    void setMachine(xcb_window_t window, const QByteArray& name)
    {
        xcb_change_property(m_server, XCB_PROP_MODE_REPLACE, window, XCB_ATOM_WM_CLIENT_MACHINE,
                            XCB_ATOM_STRING, 8, static_cast<std::uint32_t>(name.size()), name.constData());
        sync();
    }

    /// The windows that were asked to close.
    std::vector<xcb_window_t> asked()
    {
        sync();
        std::vector<xcb_window_t> windows;
        while (xcb_generic_event_t* event = xcb_poll_for_event(m_server)) {
            const auto* message = reinterpret_cast<xcb_client_message_event_t*>(event);
            if ((event->response_type & 0x7F) == XCB_CLIENT_MESSAGE && message->type == atom("WM_PROTOCOLS")
                && message->data.data32[0] == atom("WM_DELETE_WINDOW"))
                windows.push_back(message->window);
            std::free(event);
        }
        return windows;
    }

private:
    xcb_atom_t atom(const QByteArray& name)
    {
        auto* reply = xcb_intern_atom_reply(
            m_server, xcb_intern_atom(m_server, 0, static_cast<std::uint16_t>(name.size()), name.constData()),
            nullptr);
        const xcb_atom_t atom = reply->atom;
        std::free(reply);
        return atom;
    }
    void sync() { std::free(xcb_get_input_focus_reply(m_server, xcb_get_input_focus(m_server), nullptr)); }

    xcb_connection_t* m_server;
};

using Asked = std::vector<xcb_window_t>;

// A program whose first line of output is a number: its own, or of what it started.
struct Program {
    QProcess process;
    qint64 said = 0;

    explicit Program(const QString& script)
    {
        process.start(QStringLiteral("/bin/sh"), {QStringLiteral("-c"), script});
        while (!process.canReadLine() && process.waitForReadyRead(20000)) { }
        said = process.readLine().trimmed().toLongLong();
    }
    ~Program()
    {
        process.closeWriteChannel();
        process.waitForFinished();
    }
};

} // namespace

class WindowClosingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        TESSERA_NEEDS(test::XServer::isInstalled(), "Xvfb");
        m_server = std::make_unique<test::XServer>();
        QVERIFY(m_server->isThere());
    }
    void cleanup() { m_server.reset(); }

    void onlyTheWindowsOfTheProcessAreAsked()
    {
        const Program game("echo $$; read end");
        const Program other("echo $$; read end");
        Windows windows;
        const auto first = windows.add(game.said);
        windows.add(other.said);
        windows.add(0);
        const auto second = windows.add(game.said);
        QVERIFY(askWindowsToClose(static_cast<pid_t>(game.said)));
        QCOMPARE(windows.asked(), Asked({first, second}));
    }

    // What another machine shows here has its own numbers.
    void windowsOfOtherMachinesAreLeftAlone()
    {
        const Program game("echo $$; read end");
        const QByteArray here = QSysInfo::machineHostName().toUtf8();
        Windows windows;
        const auto elsewhere = windows.add(game.said);
        windows.setMachine(elsewhere, here + "-2");
        QVERIFY(!askWindowsToClose(static_cast<pid_t>(game.said)));
        const auto named = windows.add(game.said);
        windows.setMachine(named, here);
        const auto withDomain = windows.add(game.said);
        windows.setMachine(withDomain, here + ".example.org");
        const auto unnamed = windows.add(game.said);
        windows.setMachine(unnamed, "");
        QVERIFY(askWindowsToClose(static_cast<pid_t>(game.said)));
        QCOMPARE(windows.asked(), Asked({named, withDomain, unnamed}));
    }

    // As a window manager puts them into windows of its own.
    void aWindowInsideOthersIsFound()
    {
        const Program game("echo $$; read end");
        Windows manager;
        Windows windows;
        const auto frame = manager.add(0);
        const auto inner = manager.add(0, true, frame);
        const auto window = windows.add(game.said, true, inner);
        QVERIFY(askWindowsToClose(static_cast<pid_t>(game.said)));
        QCOMPARE(windows.asked(), Asked({window}));
        QCOMPARE(manager.asked(), Asked());
    }

    void aWindowThatDoesNotKnowTheQuestionIsNotAsked()
    {
        const Program game("echo $$; read end");
        Windows windows;
        windows.add(game.said, false);
        QVERIFY(!askWindowsToClose(static_cast<pid_t>(game.said)));
        QCOMPARE(windows.asked(), Asked());
    }

    void theWindowOfWhatAScriptStartedIsAsked()
    {
        // The grandchild says its number; both wait for our end of the pipe.
        const Program script("sh -c 'sh -c \"echo \\$\\$; read end\"; :'; :");
        QVERIFY(script.said > 0 && script.said != script.process.processId());
        Windows windows;
        const auto window = windows.add(script.said);
        QVERIFY(askWindowsToClose(static_cast<pid_t>(script.process.processId())));
        QCOMPARE(windows.asked(), Asked({window}));
        // Not the other way round.
        windows.add(script.process.processId());
        QVERIFY(askWindowsToClose(static_cast<pid_t>(script.said)));
        QCOMPARE(windows.asked(), Asked({window}));
    }

    // What started it is gone, so that nothing but their group tells.
    void theWindowOfWhatWasLeftBehindIsAsked()
    {
        QProcess script;
        script.setChildProcessModifier([] { ::setpgid(0, 0); });
        script.start("/bin/sh", {"-c", "sh -c 'echo $$; exec sleep 120' & read end"});
        const qint64 leader = script.processId();
        while (!script.canReadLine() && script.waitForReadyRead(20000)) { }
        const qint64 left = script.readLine().trimmed().toLongLong();
        QVERIFY(left > 0 && left != leader);
        script.closeWriteChannel();
        QVERIFY(script.waitForFinished());
        Windows windows;
        const auto window = windows.add(left);
        QVERIFY(askWindowsToClose(static_cast<pid_t>(leader)));
        QCOMPARE(windows.asked(), Asked({window}));
        ::kill(static_cast<pid_t>(left), SIGKILL);
    }

    void withoutAWindowNothingIsAsked()
    {
        Windows windows;
        windows.add(0);
        const Program game("echo $$; read end");
        QVERIFY(!askWindowsToClose(static_cast<pid_t>(game.said)));
        QVERIFY(!askWindowsToClose(0));
        QCOMPARE(windows.asked(), Asked());
    }

    void withoutAServerNothingIsAsked()
    {
        m_server.reset();
        qunsetenv("DISPLAY");
        QVERIFY(!askWindowsToClose(QCoreApplication::applicationPid()));
    }

    void theDesktopAsks()
    {
        const QTemporaryDir folder;
        UserDefaults defaults(folder.filePath("settings.ini"));
        DefaultsController controller(defaults);
        RecentDocuments recent(controller);
        QtDesktop desktop(recent);
        const Program game("echo $$; read end");
        Windows windows;
        QVERIFY(!desktop.askToClose(game.said));
        const auto window = windows.add(game.said);
        QVERIFY(desktop.askToClose(game.said));
        QCOMPARE(windows.asked(), Asked({window}));
    }

private:
    std::unique_ptr<test::XServer> m_server;
};

TESSERA_TEST(WindowClosingTest);
#include "windowclosingtest.moc"
