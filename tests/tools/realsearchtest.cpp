#include "catalogue/search/searchscore.h"

#include "catalogue/storereader.h"
#include "support/needed.h"
#include "support/testmain.h"
#include "tools/conversion.h"
#include "tools/titletable.h"

#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>

using namespace tessera;
using namespace tessera::test;

/// Queries as players type them, over everything that the installed emulator knows.
class RealSearchTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatIsMeantComesFirst()
    {
        const QString mame = QStringLiteral("/usr/games/mame");
        TESSERA_NEEDS(QFileInfo::exists(mame), "MAME");
        const QTemporaryDir folder;
        QProcess process;
        process.setStandardOutputFile(folder.filePath(QStringLiteral("list.xml")));
        process.start(mame, {QStringLiteral("-listxml")});
        QVERIFY(process.waitForFinished(300'000));
        const auto titles
            = readTitles(QStringLiteral(TESSERA_REAL_DATA "/titles/mame_jp-2012-sjis-crlf.lst"));
        QVERIFY(titles);
        const auto list = convertFile(folder.filePath(QStringLiteral("list.xml")), *titles, {});
        QVERIFY(list);
        QFile file(folder.filePath(QStringLiteral("store.xml")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(QByteArray::fromStdString(list->text.joined()));
        file.close();
        const auto store = readStore(file.fileName());
        QVERIFY(store);

        const auto queries = readQueries(QStringLiteral(TESSERA_REAL_DATA "/search/queries.tsv"));
        QVERIFY(queries.size() >= 240);
        const auto scores = ScoredSearch(store->records).score(queries);
        for (const auto& [kind, score] : scores) {
            const bool isTypo = kind == QStringLiteral("typo");
            QVERIFY2(score.first * 10 >= score.queries * (isTypo ? 8 : 9), qPrintable(kind));
            QVERIFY2(isTypo || score.amongFive == score.queries, qPrintable(kind));
        }
        const SearchScore sum = sumOf(scores);
        QVERIFY(sum.first * 100 >= sum.queries * 96);
        QVERIFY(sum.amongFive * 100 >= sum.queries * 99);
    }
};

TESSERA_TEST(RealSearchTest);
#include "realsearchtest.moc"
