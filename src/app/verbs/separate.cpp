#include "app/verbs/verbs.h"

#include "tools/separation.h"

#include <QFileInfo>

#include <csignal>
#include <thread>

#include <syslog.h>

namespace tessera {

namespace {

// While it lives, Ctrl+C asks to stop instead of ending the program at once: half a copy would be left.
class Interruption
{
public:
    Interruption()
    {
        sigemptyset(&m_signals);
        for (const int number : {SIGINT, SIGTERM, SIGHUP})
            sigaddset(&m_signals, number);
        pthread_sigmask(SIG_BLOCK, &m_signals, &m_before);
        m_listener = std::jthread([this](const std::stop_token& end) {
            constexpr timespec patience{0, 50'000'000};
            while (!end.stop_requested()) {
                if (sigtimedwait(&m_signals, nullptr, &patience) > 0)
                    m_stop.request_stop();
            }
        });
    }
    ~Interruption()
    {
        m_listener = {};
        pthread_sigmask(SIG_SETMASK, &m_before, nullptr);
    }
    Interruption(const Interruption&) = delete;
    Interruption& operator=(const Interruption&) = delete;

    std::stop_token token() const { return m_stop.get_token(); }

private:
    sigset_t m_signals{};
    sigset_t m_before{};
    std::stop_source m_stop;
    std::jthread m_listener;
};

} // namespace

int runSeparate(const Verb& verb, const QStringList& arguments)
{
    QCommandLineParser parser;
    if (const auto status = parseVerb(verb, parser, arguments, 3, 3))
        return *status;
    const QStringList paths = parser.positionalArguments();
    if (!QFileInfo::exists(paths[0]))
        return missing(separationtexts::noRoms, paths[0]);
    if (!QFileInfo::exists(paths[1]))
        return missing(separationtexts::noListfull, paths[1]);
    if (!QFileInfo::exists(paths[2]))
        return missing(separationtexts::noDestination, paths[2]);
    const auto names = romNames(paths[0]);
    if (names.empty())
        return refuse(separationtexts::noRows);

    const Interruption interruption;
    const Separation separation(paths[0], paths[2], SupportedNames::read(paths[1]));
    QList<Failure> failures;
    const auto note = [&](const SeparatedRow& row) {
        if (const auto line = row.logLine())
            syslog(LOG_USER | LOG_INFO, "%s", qUtf8Printable(*line));
        if (row.failure)
            failures << *row.failure;
    };
    const auto counts = separation.run(names, {interruption.token(), {}}, note);
    if (counts.isCancelled)
        return failed(Failure{copyCancelled, {}});
    print(separationSummary(names.size(), counts));
    if (failures.isEmpty())
        return Done;
    return failed(Failure{"separate_failed", {QString::number(failures.size()), failures.first().text()}});
}

} // namespace tessera
