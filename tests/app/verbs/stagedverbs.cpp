#include "verbs/stagedverbs.h"

#include "support/writestore.h"
#include "core/settingskeys.h"
#include "platform/userdefaults.h"

#include <QDir>
#include <QFile>
#include <QProcess>

#include <sched.h>
#include <sys/mount.h>

#include <tuple>

namespace tessera::test {

void StagedVerbs::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_hidesEmulators = false;
    m_environment = QProcessEnvironment::systemEnvironment();
    for (const char* variable :
         {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR"})
        m_environment.insert(QLatin1String(variable), path(QLatin1String(variable)));
    // No verb needs a display.
    m_environment.remove(QStringLiteral("DISPLAY"));
    m_environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("none at all"));
}

StagedVerbs::Outcome StagedVerbs::tessera(const QStringList& arguments) const
{
    QProcess process;
    process.setProcessEnvironment(m_environment);
    if (m_hidesEmulators) {
        // In a name space of its own, which goes with the program.
        process.setChildProcessModifier([] {
            if (::unshare(CLONE_NEWNS) != 0
                || ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0)
                return;
            std::ignore = ::mount("none", "/usr/games", "tmpfs", 0, "size=64k");
        });
    }
    process.start(QStringLiteral(TESSERA_PROGRAM), arguments);
    if (!process.waitForFinished())
        return {};
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
            process.readAllStandardOutput(), process.readAllStandardError()};
}

void StagedVerbs::hideEmulators()
{
    m_hidesEmulators = true;
    m_environment.insert(QStringLiteral("PATH"), QStringLiteral("/bin"));
}

void StagedVerbs::expectRefusal(const QStringList& arguments, const char* sentence) const
{
    const Outcome outcome = tessera(arguments);
    QCOMPARE(outcome.status, 1);
    QCOMPARE(outcome.out, QByteArray());
    QVERIFY2(outcome.err.startsWith("tessera: ") && outcome.err.contains(sentence), outcome.err.constData());
    QCOMPARE(outcome.err.count('\n'), 1);
}

QByteArray StagedVerbs::listed(const QString& format) const
{
    return tessera({QStringLiteral("list"), QStringLiteral("--format"), format, QStringLiteral("--catalogue"),
                    path(QStringLiteral("store.xml"))})
        .out;
}

void StagedVerbs::write(const QString& name, const QByteArray& bytes) const
{
    QFile file(path(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), bytes.size());
}

QByteArray StagedVerbs::read(const QString& name) const
{
    QFile file(path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void StagedVerbs::writeCatalogue() const
{
    QVERIFY(QDir().mkpath(path(QStringLiteral("XDG_DATA_HOME/Tessera"))));
    writeStoreOf(QStringLiteral("XDG_DATA_HOME/Tessera/Tessera.xml"), {"pong", "qix"});
}

void StagedVerbs::writeStoreOf(const QString& name, const std::vector<std::string>& sets) const
{
    std::vector<GameRecord> games;
    std::vector<std::string> titles;
    titles.reserve(sets.size());
    for (const std::string& set : sets)
        titles.push_back("Title of " + set);
    for (std::size_t i = 0; i < sets.size(); ++i) {
        GameRecord game;
        game.values.fill("a");
        game[Field::Name] = sets[i];
        game[Field::Title] = titles[i];
        games.push_back(game);
    }
    QVERIFY(writeStore(path(name), games));
}

void StagedVerbs::writeOldFavourites(const QByteArrayList& names) const
{
    QByteArray list = "<plist version=\"1.0\"><array>";
    for (const QByteArray& name : names)
        list += "<dict><key>romid</key><string>" + name + "</string></dict>";
    write(QStringLiteral("old.xml"), list + "</array></plist>");
}

void StagedVerbs::useStandIn() const
{
    UserDefaults settings(settingsPath());
    settings.setValue(keys::ExecutionPath.name, QStringLiteral(TESSERA_FAKEEMULATOR));
    QVERIFY(settings.synchronize());
}

} // namespace tessera::test
