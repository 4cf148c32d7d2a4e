#include "platform/defaultscontroller.h"

#include "core/failure.h"
#include "support/testmain.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>

using namespace tessera;

class DefaultsControllerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_defaults = std::make_unique<UserDefaults>(path());
        m_controller = std::make_unique<DefaultsController>(*m_defaults);
        m_controller->setInitialValues(QStringLiteral("Sans"), QStringLiteral("/home/someone"));
    }

    void aFirstStartWritesNothing()
    {
        m_controller->flag(keys::Keepaspect);
        QVERIFY(m_defaults->synchronize());
        for (const InitialSetting& row : initialSettings)
            QVERIFY(!UserDefaults(path()).value(row.name));
    }

    void aFailedFlushIsToldAndTriedAgain()
    {
        QVERIFY(QDir().mkdir(path()));
        m_controller->setText(keys::RomsPath, QStringLiteral("/roms"));
        const QString failure = Failure{"failure_settings", {path()}}.text();
        QVERIFY(!failure.isEmpty());
        QCOMPARE(m_controller->flush(), failure);
        QCOMPARE(m_controller->flush(), failure);
        QCOMPARE(m_controller->text(keys::RomsPath), QStringLiteral("/roms"));
        QVERIFY(QDir().rmdir(path()));
        QCOMPARE(m_controller->flush(), QString());
        QCOMPARE(UserDefaults(path()).string(keys::RomsPath.name), QStringLiteral("/roms"));
    }

    void controlsShowInitialValuesAndDirectReadersFindNone()
    {
        QCOMPARE(m_controller->flag(keys::Keepaspect), true);
        QCOMPARE(m_controller->index(keys::Videodriver), 2);
        QCOMPARE(m_controller->text(keys::Audiolatency), QStringLiteral("1"));
        QCOMPARE(m_defaults->flag(keys::Keepaspect.name), false);
        QVERIFY(!m_defaults->value(keys::Videodriver.name));
        QCOMPARE(m_defaults->string(keys::RomsPath.name), QString());
    }

    void rowsThatDependOnTheMachineAreCompleted()
    {
        QCOMPARE(m_controller->text(keys::TablefontName), QStringLiteral("Sans"));
        QCOMPARE(m_controller->text(keys::FavoritefontName), QStringLiteral("Sans"));
        QCOMPARE(m_controller->text(keys::old_favoritesfile),
                 QStringLiteral("/home/someone/Library/Preferences/jp.Plover.Tessera_Favorites.xml"));
    }

    void floatsReadWithoutAFraction()
    {
        QCOMPARE(m_controller->text(keys::Displaybeam), QStringLiteral("1"));
        m_controller->setIndex(keys::Displaybeam, 1234567);
        QCOMPARE(m_controller->text(keys::Displaybeam), QStringLiteral("1234567"));
        m_controller->setIndex(keys::Displaybeam, 0.1234567);
        QCOMPARE(m_controller->text(keys::Displaybeam), QStringLiteral("0.1234567"));
    }

    void numbersComeBackAsTheyWereTyped_data()
    {
        QTest::addColumn<QString>("typed");
        for (const char* typed :
             {"1", "1.0", "01.50", "1.25", "0.1234567", "1234567", "100000", "1e3", " 2", "-0", "1.", ".5",
              "12345678901234567890", "0.1000000000000000055", "nan", "", "typed"})
            QTest::newRow(*typed ? typed : "empty") << QString::fromLatin1(typed);
    }

    // In this run, and in the next one.
    void numbersComeBackAsTheyWereTyped()
    {
        QFETCH(QString, typed);
        // Letter by letter, as a field stores it.
        for (qsizetype length = 0; length <= typed.size(); ++length) {
            m_controller->setText(keys::Displaybeam, typed.left(length));
            QCOMPARE(m_controller->text(keys::Displaybeam), typed.left(length));
        }
        QVERIFY(m_defaults->synchronize());
        const QString copy = m_folder->filePath(QStringLiteral("copy.ini"));
        QVERIFY(QFile::copy(path(), copy));
        UserDefaults again(copy);
        DefaultsController controller(again);
        controller.setInitialValues(QString(), QString());
        QCOMPARE(controller.text(keys::Displaybeam), typed);
        bool isNumber = false;
        const double number = typed.toDouble(&isNumber);
        if (isNumber && number < 1e9)
            QCOMPARE(controller.number(keys::Displaybeam), number);
    }

    void valuesSurviveTheFile()
    {
        m_controller->setFlag(keys::Maximize, true);
        m_controller->setIndex(keys::Displayframeskip, 11);
        m_controller->setIndex(keys::rowHeight, 21.0);
        m_controller->setText(keys::RomsPath, QStringLiteral("/a b/ロム, \"x\";%20"));
        QVERIFY(m_defaults->synchronize());

        // Another path, since settings of one path share what they hold in memory.
        const QString copy = m_folder->filePath(QStringLiteral("copy.ini"));
        QVERIFY(QFile::copy(path(), copy));
        UserDefaults again(copy);
        DefaultsController controller(again);
        controller.setInitialValues(QString(), QString());
        QCOMPARE(controller.flag(keys::Maximize), true);
        QCOMPARE(controller.index(keys::Displayframeskip), 11);
        QCOMPARE(controller.text(keys::rowHeight), QStringLiteral("21"));
        QCOMPARE(again.string(keys::RomsPath.name), QStringLiteral("/a b/ロム, \"x\";%20"));
    }

    void aBrokenIndexReadsAsItsInitialValue()
    {
        m_defaults->setValue(keys::Videodriver.name, QStringLiteral("nonsense"));
        QCOMPARE(m_controller->index(keys::Videodriver), 2);
        m_defaults->setValue(keys::Videodriver.name, 1e30);
        QCOMPARE(m_controller->index(keys::Videodriver), 2);
    }

    void revertBringsBackEveryInitialValueAndKeepsPaths()
    {
        for (const InitialSetting& row : initialSettings)
            m_defaults->setValue(row.name, QStringLiteral("7"));
        m_controller->setText(keys::ExecutionPath, QStringLiteral("/usr/games/mame"));
        m_defaults->setValue(keys::GamelistColoring.name, true);
        QSignalSpy changed(m_controller.get(), &DefaultsController::changed);

        m_controller->revertToInitialValues();

        QCOMPARE(changed.count(), 1);
        QCOMPARE(changed.at(0).at(0).toString(), QString());
        QCOMPARE(m_controller->index(keys::Videodriver), 2);
        QCOMPARE(m_controller->index(keys::Displayrotation), 1);
        QCOMPARE(m_controller->index(keys::Soundsmplerate), 3);
        QCOMPARE(m_controller->flag(keys::verifyromsButton_isbad), true);
        const QString copy = m_folder->filePath(QStringLiteral("copy.ini"));
        QVERIFY(QFile::copy(path(), copy));
        UserDefaults onDisk(copy);
        // What the table leaves open is filled in from the machine.
        const QHash<QString, QString> filledIn{
            {keys::TablefontName.name, QStringLiteral("Sans")},
            {keys::FavoritefontName.name, QStringLiteral("Sans")},
            {keys::old_favoritesfile.name,
             QStringLiteral("/home/someone/Library/Preferences/jp.Plover.Tessera_Favorites.xml")},
        };
        for (const InitialSetting& row : initialSettings) {
            const auto stored = onDisk.value(row.name);
            QVERIFY2(stored.has_value(), row.name.data());
            if (const bool* flag = std::get_if<bool>(&row.value))
                QVERIFY2(stored->toString() == (*flag ? u"true" : u"false"), row.name.data());
            else if (const float* number = std::get_if<float>(&row.value))
                QVERIFY2(stored->toDouble() == double{*number}, row.name.data());
            else
                QVERIFY2(stored->toString()
                             == filledIn.value(row.name, QString(std::get<QLatin1StringView>(row.value))),
                         row.name.data());
        }
        QCOMPARE(onDisk.string(keys::ExecutionPath.name), QStringLiteral("/usr/games/mame"));
        QCOMPARE(onDisk.flag(keys::GamelistColoring.name), true);
    }

    // What no control is bound to is told like the others.
    void whatIsKeptAndForgottenIsTold()
    {
        const QSignalSpy changed(m_controller.get(), &DefaultsController::changed);
        m_controller->keep(keys::MiniWindowAbove, true);
        m_controller->keep(keys::MiniWindowAbove, true);
        QCOMPARE(changed.size(), 1);
        QCOMPARE(changed.constLast().constFirst().toString(), QString(keys::MiniWindowAbove.name));
        QVERIFY(m_controller->stored().flag(keys::MiniWindowAbove.name));
        m_controller->forget(keys::MiniWindowAbove);
        QCOMPARE(changed.size(), 2);
        QVERIFY(!m_controller->stored().value(keys::MiniWindowAbove.name));
    }

    void changesAreToldOnce()
    {
        QSignalSpy changed(m_controller.get(), &DefaultsController::changed);
        m_controller->setFlag(keys::Maximize, true);
        m_controller->setFlag(keys::Maximize, true);
        QCOMPARE(changed.count(), 1);
        QCOMPARE(changed.at(0).at(0).toString(), QStringLiteral("Maximize"));
    }

private:
    QString path() const { return m_folder->filePath(QStringLiteral("settings.ini")); }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<UserDefaults> m_defaults;
    std::unique_ptr<DefaultsController> m_controller;
};

TESSERA_TEST(DefaultsControllerTest);
#include "defaultscontrollertest.moc"
