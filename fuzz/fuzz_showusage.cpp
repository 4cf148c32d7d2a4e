#include "launch/commandline.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

// Any text may come back from -showusage: the profile must take it, and never make an argument out of
// nothing.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const auto profile
        = tessera::EmulatorProfile::fromUsage(QByteArrayView(data, static_cast<qsizetype>(size)));
    const QStringList built{"-video", "opengl", "-norotate", "-beam",   "1",       "-sound",   "none",
                            "-bios",  "\"\"",   "-joystick", "-effect", "\"a b\"", "-rompath", "\"/roms\""};
    const tessera::CommandLine line = tessera::commandLine(profile, "/archives/pong.zip", built, {"-own"});
    if (line.arguments.size() < 2 || line.arguments.last() != "-own"
        || line.arguments.contains("\"\"") == profile.has_value())
        std::abort();
    return 0;
}
