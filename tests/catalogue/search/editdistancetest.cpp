#include "catalogue/search/editdistance.h"

#include "support/testmain.h"

#include <random>

using namespace tessera;

namespace {

// Told plainly: each beginning of one word against each beginning of the other.
unsigned plainDistance(const std::string& a, const std::string& b)
{
    std::vector<std::vector<unsigned>> d(a.size() + 1, std::vector<unsigned>(b.size() + 1));
    for (unsigned i = 0; i <= a.size(); ++i) {
        for (unsigned j = 0; j <= b.size(); ++j) {
            if (i == 0 || j == 0) {
                d[i][j] = i + j;
                continue;
            }
            d[i][j] = std::min(
                {d[i - 1][j] + 1, d[i][j - 1] + 1, d[i - 1][j - 1] + (a[i - 1] == b[j - 1] ? 0U : 1U)});
            if (i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1])
                d[i][j] = std::min(d[i][j], d[i - 2][j - 2] + 1);
        }
    }
    return d[a.size()][b.size()];
}

unsigned plainBeginning(const std::string& typed, const std::string& word)
{
    unsigned least = 99;
    for (std::size_t size = 0; size <= word.size(); ++size)
        least = std::min(least, plainDistance(typed, word.substr(0, size)));
    return least;
}

} // namespace

class EditDistanceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void slipsAreCounted_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("word");
        QTest::addColumn<unsigned>("whole");
        QTest::addColumn<unsigned>("beginning");
        const auto row = [](const char* typed, const char* word, unsigned whole, unsigned beginning) {
            QTest::newRow(typed) << typed << word << whole << beginning;
        };
        row("same", "same", 0, 0);
        row("gradious", "gradius", 1, 1); // one too many
        row("stret", "street", 1, 1); // one missing
        row("combat", "kombat", 1, 1); // another one
        row("wrold", "world", 1, 1); // two swapped
        row("grad", "gradius", 3, 0); // half typed
        row("gard", "gradius", 3, 1);
        row("ab", "ba", 1, 1);
        row("", "abc", 3, 0);
        row("abcdef", "uvwxyz", 3, 3); // too far
        row("abcdefgh", "abc", 3, 3);
    }

    void slipsAreCounted()
    {
        QFETCH(QString, typed);
        QFETCH(QString, word);
        QFETCH(unsigned, whole);
        QFETCH(unsigned, beginning);
        const EditDistance distance = editDistance(typed.toStdString(), word.toStdString(), 2);
        QCOMPARE(distance.whole, whole);
        QCOMPARE(distance.beginning, beginning);
    }

    void everyDistanceIsWhatTheTableSays()
    {
        std::mt19937 random(1);
        const auto word = [&] {
            std::string text(random() % 9, 'a');
            for (char& c : text)
                c = static_cast<char>('a' + random() % 3);
            return text;
        };
        for (int i = 0; i < 20000; ++i) {
            const std::string a = word();
            const std::string b = word();
            const unsigned most = random() % 3;
            const EditDistance distance = editDistance(a, b, most);
            QCOMPARE(distance.whole, std::min(plainDistance(a, b), most + 1));
            QCOMPARE(distance.beginning, std::min(plainBeginning(a, b), most + 1));
        }
    }

    void longWordsAreTooFar()
    {
        const std::string longWord(60, 'x');
        QCOMPARE(editDistance(longWord, longWord + "y", 2).whole, 3U);
        QCOMPARE(editDistance(std::string(46, 'x'), std::string(60, 'x'), 2).beginning, 0U);
    }
};

TESSERA_TEST(EditDistanceTest);
#include "editdistancetest.moc"
