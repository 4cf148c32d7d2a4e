#include "support/testmain.h"
#include "tools/plainverification.h"
#include "tools/printedtext.h"
#include "tools/verification.h"
#include "tools/verifiedsets.h"

#include <QDir>

using namespace tessera;

/// What several releases of a real emulator printed for -verifyroms.
class RealVerificationTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void agreesWithAPlainReport_data()
    {
        QTest::addColumn<QString>("path");
        const QDir folder(QStringLiteral(TESSERA_REAL_DATA "/verifyroms"));
        for (const QString& name : folder.entryList(QDir::Files))
            QTest::newRow(qPrintable(name)) << folder.filePath(name);
    }

    void agreesWithAPlainReport()
    {
        QFETCH(QString, path);
        const auto text = readPrinted(path);
        QVERIFY(text.has_value());
        QSet<QString> endings;
        for (const Verdict& verdict : verdicts)
            endings << QString(verdict.ending());
        QCOMPARE(QString::fromStdString(verificationReport(*text, ChosenVerdicts().set())),
                 test::plainVerification(QString::fromStdString(*text), endings));
    }

    void aKnownReportHasTheKnownCounts()
    {
        constexpr std::array counts{3, 197, 178, 354, 0, 90, 52, 390, 0, 85, 1, 0};
        const auto text = readPrinted(QStringLiteral(TESSERA_REAL_DATA "/verifyroms/mame0251.txt"));
        QVERIFY(text.has_value());
        for (std::size_t i = 0; i < verdicts.size(); ++i) {
            const std::string report = verificationReport(*text, ChosenVerdicts().set(i));
            QVERIFY2(report.ends_with(": " + std::to_string(counts[i]) + ")\n\n"), report.c_str());
        }
    }

    void everyLineOfAKnownTextIsUnderstood()
    {
        const auto text = readPrinted(QStringLiteral(TESSERA_REAL_DATA "/verifyroms/mame0251.txt"));
        QVERIFY(text.has_value());
        const std::vector<VerifiedSet> sets = verifiedSets(*text);
        QCOMPARE(sets.size(), std::size_t(252));
        std::array<int, VerifiedSet::verdictCount> counted{};
        std::size_t files = 0;
        for (const VerifiedSet& set : sets) {
            ++counted[static_cast<std::size_t>(set.verdict)];
            files += set.files.size();
            for (const WrongFile& file : set.files)
                QVERIFY2(!file.name.empty() && file.bytes, set.name.c_str());
        }
        QCOMPARE(counted, (std::array<int, VerifiedSet::verdictCount>{3, 197, 52, 0, 0}));
        QCOMPARE(files, std::size_t(390 + 354 + 178 + 83 + 85 + 5 + 1));
    }
};

TESSERA_TEST(RealVerificationTest);
#include "realverificationtest.moc"
