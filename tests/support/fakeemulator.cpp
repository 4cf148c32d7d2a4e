// A program that plays the emulator. The first argument says how it behaves, as a game's name would; see
// `plays`. With -showusage and -showconfig it prints the file that FAKE_USAGE and FAKE_CONFIG name, and adds
// the option to the file that FAKE_RUNS names. FAKE_COMMAND says how it behaves whatever the arguments are.
// With -listxml it says FAKE_WORDS on standard error, prints the file that FAKE_LISTXML names, and then
// behaves as FAKE_THEN says. A grandchild that it leaves behind locks the file that FAKE_GRANDCHILD names,
// with its number in it. It has no window: SIGUSR1 is the click on its close button; what it saves then is
// the file that FAKE_SAVED names.

#include <array>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include <sys/file.h>
#include <unistd.h>

namespace {

constexpr unsigned longEnough = 120; // seconds; a run that a failing test forgot ends by itself

bool printFile(const char* path)
{
    std::FILE* file = path ? std::fopen(path, "rb") : nullptr;
    if (!file)
        return false;
    char buffer[4096];
    while (std::feof(file) == 0 && std::ferror(file) == 0)
        std::fwrite(buffer, 1, std::fread(buffer, 1, sizeof buffer, file), stdout);
    return std::fclose(file) == 0;
}

int answer(const char* option, const char* path)
{
    if (const char* runs = std::getenv("FAKE_RUNS")) {
        if (std::FILE* file = std::fopen(runs, "a")) {
            std::fprintf(file, "%s\n", option);
            std::fclose(file);
        }
    }
    return printFile(path) ? 0 : 1;
}

[[noreturn]] void waitToBeEnded()
{
    alarm(longEnough);
    std::puts("ready");
    std::fflush(stdout);
    for (;;)
        pause();
}

// What it does when it is asked to end.
struct Manners {
    bool closes; ///< with its window, and saves
    bool heedsSignal; ///< SIGTERM
};

[[noreturn]] void waitToBeAsked(Manners manners)
{
    sigset_t asked;
    sigemptyset(&asked);
    sigaddset(&asked, SIGUSR1);
    sigaddset(&asked, SIGTERM);
    sigprocmask(SIG_BLOCK, &asked, nullptr);
    alarm(longEnough);
    std::puts("ready");
    for (;;) {
        std::fflush(stdout);
        int number = 0;
        sigwait(&asked, &number);
        std::puts(number == SIGUSR1 ? "asked to close" : "told to end");
        if (number == SIGUSR1 ? !manners.closes : !manners.heedsSignal)
            continue;
        const char* path = number == SIGUSR1 ? std::getenv("FAKE_SAVED") : nullptr;
        if (std::FILE* file = path != nullptr ? std::fopen(path, "w") : nullptr)
            std::fclose(file);
        // The status of an end that was asked for says nothing.
        std::exit(3);
    }
}

void flood(long megabytes, char lineEnd)
{
    std::string line(79, 'x');
    line += lineEnd;
    for (long i = 0; i < megabytes * 1'000'000 / 80; ++i)
        std::fputs(line.c_str(), stdout);
}

// It keeps our output open after we are gone, and the lock, which is its and ours.
void leaveGrandchild()
{
    std::fflush(stdout);
    const char* path = std::getenv("FAKE_GRANDCHILD");
    std::FILE* file = path ? std::fopen(path, "w") : nullptr;
    if (!file || flock(fileno(file), LOCK_EX) != 0)
        std::_Exit(1);
    const pid_t id = fork();
    if (id == 0) {
        alarm(longEnough);
        for (;;)
            pause();
    }
    std::fprintf(file, "%d\n", static_cast<int>(id));
    std::fclose(file);
}

int plays(const std::string& game, int argc, char* argv[])
{
    const auto number = [&](std::size_t from) { return std::strtol(game.c_str() + from, nullptr, 10); };
    if (game == "print") {
        for (int i = 1; i < argc; ++i)
            std::printf("[%s]\n", argv[i]);
    } else if (game.starts_with("exit")) {
        std::puts("leaving");
        return static_cast<int>(number(4));
    } else if (game.starts_with("silent")) {
        return static_cast<int>(number(6));
    } else if (game.starts_with("signal")) {
        std::fflush(stdout);
        // A sanitizer's own handler would turn the signal into a status.
        std::signal(static_cast<int>(number(6)), SIG_DFL);
        std::raise(static_cast<int>(number(6)));
    } else if (game.starts_with("flood")) {
        flood(number(5), '\n');
    } else if (game.starts_with("wide")) {
        flood(number(4), 'x');
    } else if (game == "endless") {
        alarm(longEnough);
        for (;;)
            flood(1, '\n');
    } else if (game == "latin1") {
        std::fputs("caf\xE9 \xFF\n", stdout);
    } else if (game == "cutoff") {
        std::fputs("a\xE3\x81", stdout);
    } else if (game == "brokenoff") {
        std::fputs("\xE3", stdout);
        std::fflush(stdout);
        usleep(50'000);
        std::fputs("xyz\n", stdout);
    } else if (game.starts_with("split")) {
        // Characters of two to four bytes, with the first leads of three and of four; the number says which.
        constexpr std::array characters{"é", "あ", "ก", "😀"};
        const char* character = characters.at(static_cast<std::size_t>(number(5)));
        std::fputc(character[0], stdout);
        std::fflush(stdout);
        usleep(50'000);
        std::puts(character + 1);
    } else if (game == "both") {
        std::fputs("out\n", stdout);
        std::fflush(stdout);
        std::fputs("err\n", stderr);
    } else if (game == "folder") {
        char folder[4096];
        std::puts(getcwd(folder, sizeof folder));
    } else if (game == "stdin") {
        std::puts(std::getchar() == EOF ? "nothing" : "something");
    } else if (game == "numeric") {
        const char* all = std::getenv("LC_ALL");
        std::printf("%s %s\n", std::getenv("LC_NUMERIC"), all ? all : "unset");
    } else if (game == "wait") {
        waitToBeEnded();
    } else if (game == "windowed") {
        waitToBeAsked({true, false});
    } else if (game == "frozen") {
        waitToBeAsked({false, true});
    } else if (game == "stubborn") {
        waitToBeAsked({false, false});
    } else if (game == "grandchild") {
        leaveGrandchild();
        std::puts("gone");
    } else if (game == "quietgrandchild") {
        leaveGrandchild();
    } else {
        std::fprintf(stderr, "Unknown system \"%s\"\n", game.c_str());
        return 5;
    }
    return 0;
}

int listMachines(int argc, char* argv[])
{
    if (const char* words = std::getenv("FAKE_WORDS"))
        std::fputs(words, stderr);
    printFile(std::getenv("FAKE_LISTXML"));
    std::fflush(stdout);
    const char* then = std::getenv("FAKE_THEN");
    return then ? plays(then, argc, argv) : 0;
}

} // namespace

int main(int argc, char* argv[])
{
    if (const char* command = std::getenv("FAKE_COMMAND"))
        return plays(command, argc, argv);
    if (argc > 1 && std::strcmp(argv[1], "-showusage") == 0)
        return answer(argv[1], std::getenv("FAKE_USAGE"));
    if (argc > 1 && std::strcmp(argv[1], "-showconfig") == 0)
        return answer(argv[1], std::getenv("FAKE_CONFIG"));
    if (argc > 1 && std::strcmp(argv[1], "-listxml") == 0)
        return listMachines(argc, argv);
    return plays(argc > 1 ? argv[1] : "", argc, argv);
}
