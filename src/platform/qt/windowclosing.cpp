#include "platform/qt/windowclosing.h"

#include <QByteArray>
#include <QFile>
#include <QSysInfo>

#include <xcb/xcb.h>

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <string_view>
#include <tuple>
#include <unistd.h>
#include <vector>

namespace tessera {

namespace {

struct Freed {
    void operator()(void* reply) const { std::free(reply); }
};

template <class T>
std::unique_ptr<T, Freed> owned(T* reply)
{
    return std::unique_ptr<T, Freed>(reply);
}

struct Disconnected {
    void operator()(xcb_connection_t* server) const { xcb_disconnect(server); }
};

using Windows = std::vector<xcb_window_t>;

xcb_atom_t atom(xcb_connection_t* server, std::string_view name)
{
    const auto reply
        = owned(xcb_intern_atom_reply(server, xcb_intern_atom(server, 0, name.size(), name.data()), nullptr));
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

// Every window there is: a window manager, where there is one, puts a program's windows into its own, and may
// keep no list of them. Asked for by levels, so that a full desktop costs a few round trips.
Windows allWindows(xcb_connection_t* server)
{
    Windows windows;
    for (auto screen = xcb_setup_roots_iterator(xcb_get_setup(server)); screen.rem > 0;
         xcb_screen_next(&screen))
        windows.push_back(screen.data->root);
    for (std::size_t begin = 0; begin < windows.size();) {
        const std::size_t end = windows.size();
        std::vector<xcb_query_tree_cookie_t> level;
        for (std::size_t i = begin; i < end; ++i)
            level.push_back(xcb_query_tree(server, windows[i]));
        for (const auto& cookie : level) {
            // A window that is gone by now has no answer.
            const auto tree = owned(xcb_query_tree_reply(server, cookie, nullptr));
            if (!tree)
                continue;
            const xcb_window_t* children = xcb_query_tree_children(tree.get());
            windows.insert(windows.end(), children, children + xcb_query_tree_children_length(tree.get()));
        }
        begin = end;
    }
    return windows;
}

// The 32-bit values of a property, for each of the windows; empty where a window has it not.
std::vector<std::vector<std::uint32_t>> property(xcb_connection_t* server, const Windows& windows,
                                                 xcb_atom_t name, xcb_atom_t type)
{
    constexpr std::uint32_t most = 64; // values
    std::vector<xcb_get_property_cookie_t> cookies;
    for (const xcb_window_t window : windows)
        cookies.push_back(xcb_get_property(server, 0, window, name, type, 0, most));
    std::vector<std::vector<std::uint32_t>> values;
    for (const auto& cookie : cookies) {
        const auto reply = owned(xcb_get_property_reply(server, cookie, nullptr));
        auto& found = values.emplace_back();
        if (!reply || reply->format != 32)
            continue;
        const auto* first = static_cast<const std::uint32_t*>(xcb_get_property_value(reply.get()));
        found.assign(first, first + reply->value_len);
    }
    return values;
}

std::string_view withoutDomain(std::string_view machine)
{
    return machine.substr(0, machine.find('.'));
}

// A display may show windows of other machines, where the same number is another process.
bool isOfAnotherMachine(xcb_connection_t* server, xcb_window_t window)
{
    constexpr std::uint32_t most = 64; // times four bytes
    const auto reply = owned(xcb_get_property_reply(
        server, xcb_get_property(server, 0, window, XCB_ATOM_WM_CLIENT_MACHINE, XCB_ATOM_STRING, 0, most),
        nullptr));
    if (!reply || reply->format != 8 || reply->value_len == 0)
        return false;
    const std::string_view machine(static_cast<const char*>(xcb_get_property_value(reply.get())),
                                   reply->value_len);
    return withoutDomain(machine) != withoutDomain(QSysInfo::machineHostName().toStdString());
}

pid_t parentOf(pid_t process)
{
    QFile stat(QStringLiteral("/proc/%1/stat").arg(process));
    if (!stat.open(QIODevice::ReadOnly))
        return 0;
    // The name stands in parentheses and may hold some itself; the state and the parent follow.
    const QByteArray line = stat.readAll();
    return line.mid(line.lastIndexOf(')') + 2).split(' ').value(1).toInt();
}

bool belongsTo(pid_t process, pid_t ancestor)
{
    if (::getpgid(process) == ancestor)
        return true;
    while (process > 1 && process != ancestor)
        process = parentOf(process);
    return process == ancestor;
}

void sendClosing(xcb_connection_t* server, xcb_window_t window, xcb_atom_t protocols, xcb_atom_t closing)
{
    xcb_client_message_event_t event{};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = window;
    event.type = protocols;
    event.data.data32[0] = closing;
    event.data.data32[1] = XCB_CURRENT_TIME;
    xcb_send_event(server, 0, window, XCB_EVENT_MASK_NO_EVENT, reinterpret_cast<const char*>(&event));
}

} // namespace

bool askWindowsToClose(pid_t process)
{
    const std::unique_ptr<xcb_connection_t, Disconnected> owner(xcb_connect(nullptr, nullptr));
    xcb_connection_t* server = owner.get();
    if (process <= 1 || xcb_connection_has_error(server) != 0)
        return false;
    const xcb_atom_t protocols = atom(server, "WM_PROTOCOLS");
    const xcb_atom_t closing = atom(server, "WM_DELETE_WINDOW");
    const Windows windows = allWindows(server);
    const auto owners = property(server, windows, atom(server, "_NET_WM_PID"), XCB_ATOM_CARDINAL);
    Windows ours;
    for (std::size_t i = 0; i < windows.size(); ++i) {
        if (!owners[i].empty() && belongsTo(static_cast<pid_t>(owners[i].front()), process)
            && !isOfAnotherMachine(server, windows[i]))
            ours.push_back(windows[i]);
    }
    const auto understood = property(server, ours, protocols, XCB_ATOM_ATOM);
    bool isAsked = false;
    for (std::size_t i = 0; i < ours.size(); ++i) {
        if (std::ranges::find(understood[i], closing) == understood[i].end())
            continue;
        sendClosing(server, ours[i], protocols, closing);
        isAsked = true;
    }
    // The connection is not cut before the server has read what was sent: any answer says so.
    std::ignore = owned(xcb_get_input_focus_reply(server, xcb_get_input_focus(server), nullptr));
    return isAsked;
}

} // namespace tessera
