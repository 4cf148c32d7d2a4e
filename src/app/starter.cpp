// The command `tessera`: becomes the program for verbs, which loads no window library, or the one with the
// windows. It is linked statically, so that it costs next to nothing itself.

#include "app/verbs/names.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <string>

#include <climits>
#include <unistd.h>

namespace {

bool isForVerbs(std::string_view first)
{
    return first == "--help" || first == "-h" || first == "--version"
        || std::ranges::find(tessera::verbNames, first) != tessera::verbNames.end();
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
    const std::string program = isForVerbs(argc > 1 ? argv[1] : "") ? "tessera-verbs" : "tessera-windows";
    // Beside this one where it was built, in a folder of its own where it was installed.
    const std::string folder = ownFolder();
    for (const std::string& place : {folder + program, folder + TESSERA_PROGRAMS + '/' + program})
        execv(place.c_str(), argv);
    std::fprintf(stderr, "tessera: %s%s cannot be started (%s)\n", folder.c_str(), program.c_str(),
                 std::strerror(errno));
    return 1;
}
