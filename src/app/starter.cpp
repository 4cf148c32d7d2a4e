// The command `tessera`: becomes the program for verbs, which loads no window library, or the one with the
// windows. It is linked statically, so that it costs next to nothing itself.

#include "app/verbs/names.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <span>
#include <string>

#include <climits>
#include <unistd.h>

namespace {

// What the windows' toolkit takes for itself; all but the last have a value behind them.
constexpr std::array<std::string_view, 13> toolkitOptions{
    "platform",    "platformpluginpath", "platformtheme", "plugin", "qwindowgeometry",
    "qwindowicon", "qwindowtitle",       "stylesheet",    "style",  "session",
    "display",     "geometry",           "reverse"};

// How many words a toolkit's option takes, with its value; 0 for any other word.
int toolkitWords(std::string_view word)
{
    if (!word.starts_with('-'))
        return 0;
    word.remove_prefix(word.starts_with("--") ? 2 : 1);
    const auto* option = std::ranges::find(toolkitOptions, word.substr(0, word.find('=')));
    if (option == toolkitOptions.end())
        return 0;
    return *option == toolkitOptions.back() || word.find('=') != std::string_view::npos ? 1 : 2;
}

// The windows open for no word or for a file; everything else is a verb or wrong, and needs no display.
bool isForVerbs(std::span<char*> words)
{
    if (words.empty())
        return false;
    const std::string_view first = words.front();
    if (std::ranges::find(tessera::verbNames, first) != tessera::verbNames.end())
        return true;
    int files = 0;
    for (std::size_t i = 0; i < words.size();) {
        const std::string_view word = words[i];
        const int taken = toolkitWords(word);
        if (taken == 0 && (word.starts_with('-') || ++files > 1))
            return true;
        i += static_cast<std::size_t>(std::max(taken, 1));
    }
    return false;
}

// Where this program lies; empty when that cannot be told.
std::string ownFolder()
{
    char path[PATH_MAX];
    const ssize_t size = readlink("/proc/self/exe", path, sizeof path);
    const std::string_view whole(path, size > 0 ? static_cast<std::size_t>(size) : 0);
    return std::string(whole.substr(0, whole.rfind('/') + 1));
}

} // namespace

int main(int argc, char* argv[])
{
    const std::string program = isForVerbs({argv + 1, argv + argc}) ? "tessera-verbs" : "tessera-windows";
    const std::string folder = ownFolder();
    // Beside this one where it was built, in a folder of its own where it was installed.
    for (const char* place : {"", TESSERA_PROGRAMS "/"}) {
        std::string path = folder;
        path += place;
        path += program;
        execv(path.c_str(), argv);
    }
    std::fprintf(stderr, "tessera: %s%s cannot be started (%s)\n", folder.c_str(), program.c_str(),
                 std::strerror(errno));
    return 1;
}
