#include "app/verbs/names.h"
#include "verbs/stagedverbs.h"

using namespace tessera;

/// What the program offers to shells, and its manual page.
class CompletionTest : public test::StagedVerbs
{
    Q_OBJECT

private Q_SLOTS:
    void whatGoesOnIsOffered_data()
    {
        QTest::addColumn<QStringList>("words");
        QTest::addColumn<QString>("offered");
        const auto row = [](const char* line, const char* offered) {
            QTest::newRow(line) << QString::fromLatin1(line).split(u' ') << QString::fromLatin1(offered);
        };
        row("lau", "launch");
        row("conv", "convert convert-favourites");
        row("--", "--help --version");
        row("launch po", "pong");
        row("history ", "pong qix");
        row("command 7 q", "qix");
        row("arguments --dialect ", "sdl osx");
        row("arguments --dialect sdl po", "pong");
        row("arguments --set Maxi", "Maximize=");
        row("script pong --format s", "sh scpt");
        row("script --for", "--format");
        row("convert a b --without-", "--without-bios --without-mechanical --without-devices");
        row("list yea", "year:");
        row("list pong yea", "year:");
        // Files, which the shell knows.
        row("diff ", "");
        row("build -o ", "");
        row("nonsense ", "");
    }
    void whatGoesOnIsOffered()
    {
        QFETCH(QStringList, words);
        writeCatalogue();
        const Outcome offered = tessera(QStringList{QStringLiteral("--complete")} + words);
        QCOMPARE(offered.status, 0);
        QTEST(QString::fromUtf8(offered.out).split(u'\n', Qt::SkipEmptyParts).join(u' '), "offered");
        QCOMPARE(offered.err, QByteArray());
    }

    void withoutACatalogueNoSetIsOffered()
    {
        const Outcome offered
            = tessera({QStringLiteral("--complete"), QStringLiteral("launch"), QStringLiteral("po")});
        QCOMPARE(offered.status, 0);
        QCOMPARE(offered.out, QByteArray());
        QCOMPARE(offered.err, QByteArray());
    }

    void theManualTellsOfEveryVerb()
    {
        const Outcome page = tessera({QStringLiteral("--man")});
        QCOMPARE(page.status, 0);
        QVERIFY(page.out.startsWith(".TH TESSERA 1"));
        for (const std::string_view verb : verbNames) {
            const QByteArray name
                = QByteArray(verb.data(), static_cast<qsizetype>(verb.size())).replace("-", "\\-");
            const QByteArray line = ".B " + name + '\n';
            QVERIFY2(page.out.contains(line), line);
        }
        // A line that begins with a dot or an apostrophe would be a request.
        QVERIFY(!page.out.contains("\n'"));
    }
};

TESSERA_TEST(CompletionTest);
#include "completiontest.moc"
