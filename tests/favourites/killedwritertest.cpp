#include "favourites/favourites.h"

#include "favouritetexts.h"
#include "support/testmain.h"

#include <QElapsedTimer>
#include <QTemporaryDir>

#include <csignal>
#include <random>
#include <thread>

#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace tessera;
using namespace tessera::test;

namespace {

constexpr int kills = 300;

QByteArray manyFavourites(const QByteArray& title)
{
    QByteArray entries;
    for (int i = 0; i < 400; ++i)
        entries += entryText("set" + QByteArray::number(i), title, "-cheat");
    return listFile(entries);
}

// What the writer is doing, where the test can see it after its end.
class SharedFlag
{
public:
    SharedFlag()
        : m_flag(static_cast<volatile int*>(
              ::mmap(nullptr, sizeof(int), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0)))
    {
    }
    ~SharedFlag() { ::munmap(const_cast<int*>(m_flag), sizeof(int)); }
    SharedFlag(const SharedFlag&) = delete;
    SharedFlag& operator=(const SharedFlag&) = delete;

    void set(bool on) { *m_flag = on ? 1 : 0; }
    bool isSet() const { return *m_flag != 0; }

private:
    volatile int* m_flag;
};

// Writes the one and the other, without end.
[[noreturn]] void writeForever(const QString& path, const std::array<QByteArray, 2>& texts, int ready,
                               SharedFlag& isWriting)
{
    Favourites favourites(path);
    if (!favourites.open())
        _exit(1);
    for (std::size_t i = 0;; ++i) {
        isWriting.set(true);
        if (!favourites.write(texts[i % 2]))
            _exit(1);
        isWriting.set(false);
        if (i == 0 && ::write(ready, "x", 1) != 1)
            _exit(1);
    }
}

} // namespace

class KilledWriterTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theOldOrTheNewFileIsWhole()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("f.xml"));
        const std::array texts{manyFavourites("old"), manyFavourites("another, which is longer")};
        QVERIFY(writeBytes(path, texts[0]));
        const auto writeTime = timeOfAWrite(folder.filePath(QStringLiteral("timed.xml")), texts[1]);
        QVERIFY(writeTime > 0);
        std::mt19937 random{20260102};
        std::uniform_int_distribution<qint64> moment{0, 3 * writeTime};

        SharedFlag isWriting;
        std::array<int, 2> found{};
        int interrupted = 0;
        for (int i = 0; i < kills; ++i) {
            std::array<int, 2> ready{};
            QCOMPARE(::pipe(ready.data()), 0);
            const pid_t writer = ::fork();
            QVERIFY(writer >= 0);
            if (writer == 0)
                writeForever(path, texts, ready[1], isWriting);
            char byte = 0;
            QCOMPARE(::read(ready[0], &byte, 1), ssize_t(1));
            std::this_thread::sleep_for(std::chrono::microseconds(moment(random)));
            QCOMPARE(::kill(writer, SIGKILL), 0);
            int status = 0;
            QCOMPARE(::waitpid(writer, &status, 0), writer);
            QVERIFY(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL);
            ::close(ready[0]);
            ::close(ready[1]);

            const QByteArray bytes = bytesOf(path);
            const auto which = std::ranges::find(texts, bytes);
            QVERIFY2(which != texts.end(), "neither file is whole");
            ++found[static_cast<std::size_t>(which - texts.begin())];
            interrupted += isWriting.isSet() ? 1 : 0;
            removeUnfinished(folder.path());
        }
        // The moments were good ones: both files were found, and nearly every kill came within a write.
        QVERIFY(found[0] > 0 && found[1] > 0);
        QVERIFY2(interrupted > kills / 2, qPrintable(QString::number(interrupted)));
    }

private:
    // Microseconds.
    static qint64 timeOfAWrite(const QString& path, const QByteArray& text)
    {
        Favourites favourites(path);
        QElapsedTimer timer;
        timer.start();
        bool isWritten = true;
        for (int i = 0; i < 10; ++i)
            isWritten = favourites.write(text) && isWritten;
        if (!isWritten)
            return -1;
        return std::max(qint64(1), timer.nsecsElapsed() / 10'000);
    }

    // A killed writer may leave its unfinished file behind.
    static void removeUnfinished(const QString& folder)
    {
        for (const QFileInfo& file : QDir(folder).entryInfoList({QStringLiteral("f.xml.*")}, QDir::Files))
            QFile::remove(file.filePath());
    }
};

TESSERA_TEST(KilledWriterTest);
#include "killedwritertest.moc"
