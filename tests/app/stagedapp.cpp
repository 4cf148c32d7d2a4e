#include "stagedapp.h"

#include "app/desks/favouritesdesk.h"
#include "support/writestore.h"

#include <QDir>
#include <QFile>
#include <QTest>

namespace tessera::test {

namespace {

GameRecord machine(std::string_view name, std::string_view cloneof, std::string_view title,
                   std::string_view titlejp, std::string_view year, std::string_view maker,
                   std::string_view status)
{
    return GameRecord{{"game", name, cloneof, title, titlejp, year, maker, status, ""}};
}

const std::array machines{
    machine("pong", "pong", "Pong", "ポン", "1972", "Atari", "good"),
    machine("galaga", "galaga88", "Galaga", "ギャラガ", "1981", "Namco", "unusual"),
    machine("qix", "qix", "Qix", "クイックス", "1981", "Taito", "preliminary"),
    machine("1943", "1943", "1943: The Battle of Midway", "1943", "1987", "Capcom", "imperfect"),
};

} // namespace

StagedApp::StagedApp()
    : defaults(settingsPath())
    , controller(defaults)
    , recent(controller)
{
    QDir().mkpath(path(QStringLiteral("data")));
    // What an emulator answers is remembered here, not among the user's own files.
    qputenv("XDG_CACHE_HOME", QFile::encodeName(path(QStringLiteral("cache"))));
    useEmulator(QStringLiteral(TESSERA_FAKEEMULATOR));
}

void StagedApp::writeCatalogue()
{
    QVERIFY(tessera::writeStore(storePath(), machines));
}

void StagedApp::writeStore(const QByteArray& bytes)
{
    QFile file(storePath());
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), bytes.size());
}

QByteArray StagedApp::store() const
{
    QFile file(storePath());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void StagedApp::start(const QString& file)
{
    app = std::make_unique<App>(desktop, controller, recent, storePath());
    app->run(file);
    // Most tests have no favourites, which every start says.
    if (!QFile::exists(app->favorites().favourites().path()))
        desktop.forget(QStringLiteral("log Favorites.xml file not found."));
}

void StagedApp::expectMissingStore(int recovery)
{
    desktop.answerError(QString(), recovery);
}

void StagedApp::useEmulator(const QString& executable)
{
    defaults.setValue(keys::ExecutionPath.name, executable);
}

} // namespace tessera::test
