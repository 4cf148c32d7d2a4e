// bench_build EMULATOR: building the catalogue from a running emulator, against letting it print to nobody.

#include "rounds.h"

#include "tools/cataloguebuild.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QTemporaryDir>

#include <cstdlib>

using namespace tessera;

namespace {

void build(const QString& emulator, const QString& store)
{
    CatalogueBuild build;
    QEventLoop loop;
    QObject::connect(&build, &CatalogueBuild::finished, &loop, &QEventLoop::quit);
    QObject::connect(&build, &CatalogueBuild::failed, &loop, [](const Failure& failure) {
        std::fprintf(stderr, "bench_build: %s\n", failure.key);
        std::exit(1);
    });
    build.start(emulator, store);
    loop.exec();
}

} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication application(argc, argv);
    if (argc != 2) {
        std::fputs("usage: bench_build EMULATOR\n", stderr);
        return 2;
    }
    const QTemporaryDir folder;
    const QString emulator = QFile::decodeName(argv[1]);
    const std::string print = std::string("LC_NUMERIC=C '") + argv[1] + "' -listxml | cat >/dev/null";
    bench::compare(
        "build / emulator -listxml | cat", [&] { build(emulator, folder.filePath("Tessera.xml")); },
        [&] {
            if (std::system(print.c_str()) != 0)
                std::exit(1);
        },
        bench::timed, 3);
    return 0;
}
