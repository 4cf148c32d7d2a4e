#include "bios/biosquestion.h"
#include "bios/biossets.h"

#include "support/testmain.h"

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>

using namespace tessera;

namespace {

const std::string list
    = "<?xml version=\"1.0\"?>\n<!DOCTYPE mame [\n<!ELEMENT biosset EMPTY>\n]>\n<mame build=\"0.251\">\n"
      "\t<machine name=\"pong\" sourcefile=\"pong.cpp\">\n\t\t<description>Pong</description>\n\t</machine>\n"
      "\t<machine name=\"neogeo\" sourcefile=\"neo.cpp\" isbios=\"yes\">\n\t\t<description>Neo &amp; "
      "Geo</description>\n\t\t<biosset name=\"euro\" description=\"Europe &quot;2&quot;\"/>\n"
      "\t\t<biosset name=\"us\" description=\"US\" default=\"yes\"/>\n\t</machine>\n"
      "\t<machine name=\"mslug\" romof=\"neogeo\">\n\t\t<description>Metal</description>\n"
      "\t\t<biosset name=\"japan\" description=\"Japan\"/>\n\t</machine>\n</mame>\n";

QString shown(const BiosEntries& entries)
{
    QStringList texts;
    for (const BiosEntry& entry : entries)
        texts << QStringLiteral("%1/%2/%3[%4]").arg(entry.rom, entry.bios, entry.name, shown(entry.children));
    return texts.join(u' ');
}

} // namespace

class BiosSetsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void biosMachinesAreFoundWhateverThePieces_data()
    {
        QTest::addColumn<int>("size");
        for (const int size : {1, 2, 7, 64, 100'000})
            QTest::newRow(qPrintable(QString::number(size))) << size;
    }

    void biosMachinesAreFoundWhateverThePieces()
    {
        QFETCH(int, size);
        BiosSets sets(BiosSets::Machines::BiosOnly);
        for (std::size_t at = 0; at < list.size(); at += static_cast<std::size_t>(size))
            sets.take(std::string_view(list).substr(at, static_cast<std::size_t>(size)));
        sets.end();
        QCOMPARE(shown(sets.entries()),
                 QStringLiteral("neogeo/us/Neo & Geo[neogeo/euro/Europe \"2\"[] neogeo/us/US[]]"));
    }

    void everyMachineIsFoundWhenAskedFor()
    {
        BiosSets sets(BiosSets::Machines::All);
        sets.take(list);
        sets.end();
        QCOMPARE(sets.entries().size(), std::size_t{2});
        QCOMPARE(shown({sets.entries()[1]}), QStringLiteral("mslug/japan/Metal[mslug/japan/Japan[]]"));
    }

    void theOlderElementIsFoundToo()
    {
        BiosSets sets(BiosSets::Machines::BiosOnly);
        sets.take("<game isbios=\"yes\" name=\"pgm\"><biosset name=\"v1\" description=\"1\"/></game>");
        sets.end();
        QCOMPARE(shown(sets.entries()), QStringLiteral("pgm/v1/[pgm/v1/1[]]"));
    }

    void whatIsCutOffIsNotTaken()
    {
        BiosSets sets(BiosSets::Machines::All);
        sets.take(std::string_view(list).substr(0, list.find("default=")));
        sets.end();
        QVERIFY(sets.entries().empty());
    }

    void onlyAPlainWordIsASetName_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("is");
        QTest::newRow("a set") << "pacman_2" << true;
        QTest::newRow("an option") << "-createconfig" << false;
        QTest::newRow("a path") << "../pacman" << false;
        QTest::newRow("a pattern") << "*" << false;
        QTest::newRow("nothing") << "" << false;
        QTest::newRow("two words") << "a b" << false;
    }

    void onlyAPlainWordIsASetName()
    {
        QFETCH(QString, name);
        QFETCH(bool, is);
        QCOMPARE(isSetName(name), is);
    }

    // LC_ALL, which the tests set, would outvote LC_NUMERIC.
    void theEmulatorPrintsNumbersWithAPoint()
    {
        const QTemporaryDir folder;
        QFile emulator(folder.filePath("emulator"));
        QVERIFY(emulator.open(QIODevice::WriteOnly) && emulator.write(R"(#!/bin/sh
echo '<machine name="n" isbios="yes"><description>'"$LC_NUMERIC ${LC_ALL-unset}"'</description>'
echo '<biosset name="b" description="B"/></machine>'
)") > 0);
        emulator.close();
        QVERIFY(emulator.setPermissions(QFile::ReadOwner | QFile::ExeOwner));
        BiosQuestion question(emulator.fileName(), QString());
        QSignalSpy answered(&question, &BiosQuestion::answered);
        question.ask();
        QTRY_COMPARE(answered.count(), 1);
        QCOMPARE(question.entries().at(0).name, QStringLiteral("C unset"));
    }
};

TESSERA_TEST(BiosSetsTest);
#include "biossetstest.moc"
