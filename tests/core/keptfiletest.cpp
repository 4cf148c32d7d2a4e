#include "core/keptfile.h"

#include "filelimit.h"
#include "support/testmain.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using namespace tessera;

namespace {

const QDateTime when(QDate(2026, 1, 2), QTime(3, 4, 5));

QByteArray bytesOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
}

std::optional<QByteArray> reader(const QString& path)
{
    return bytesOf(path);
}

/// The name of the copy.
QString written(KeptFile& file, const QByteArray& text)
{
    return file.write(text, when).value_or(QStringLiteral("not written"));
}

} // namespace

class KeptFileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_path = m_folder->filePath(QStringLiteral("list.xml"));
        m_kept = m_folder->filePath(QStringLiteral("list 2026-01-02 03-04-05.xml"));
    }

    void nothingIsKeptOfNothing()
    {
        KeptFile file(m_path);
        QCOMPARE(written(file, "new"), QString());
        QCOMPARE(bytesOf(m_path), "new");
    }

    void whatWasNeverReadIsKept()
    {
        put("old");
        KeptFile file(m_path);
        QCOMPARE(written(file, "new"), m_kept);
        QCOMPARE(bytesOf(m_kept), "old");
        QCOMPARE(bytesOf(m_path), "new");
        // What was written here is known.
        QCOMPARE(written(file, "newer"), QString());
        QCOMPARE(bytesOf(m_path), "newer");
    }

    void whatWasReadIsReplaced()
    {
        put("old");
        KeptFile file(m_path);
        QCOMPARE(file.read(&reader).value(), "old");
        QCOMPARE(written(file, "new"), QString());
        QCOMPARE(files(), 1);
    }

    void whatCouldNotBeReadIsKept()
    {
        put("old");
        KeptFile file(m_path);
        QVERIFY(file.read(&reader));
        QVERIFY(!file.read([](const QString&) { return std::optional<int>(); }));
        QCOMPARE(written(file, "new"), m_kept);
    }

    void whatSomebodyElseWroteSinceIsKept()
    {
        put("old");
        KeptFile file(m_path);
        file.setRead();
        put("theirs");
        QCOMPARE(written(file, "new"), m_kept);
        QCOMPARE(bytesOf(m_kept), "theirs");
    }

    void whatIsForeignIsKept()
    {
        put("old");
        KeptFile file(m_path);
        file.setRead();
        file.setForeign();
        QCOMPARE(written(file, "new"), m_kept);
    }

    void aFailedWriteKeepsNothing()
    {
        put("old");
        KeptFile file(m_path);
        {
            const test::FileLimit disk(100);
            QVERIFY(!file.write(QByteArray(100'000, 'x'), when));
        }
        QCOMPARE(bytesOf(m_path), "old");
        QCOMPARE(files(), 1);
        // It is as unknown as before.
        QCOMPARE(written(file, "new"), m_kept);
    }

private:
    void put(const QByteArray& bytes) const
    {
        QFile file(m_path);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }
    int files() const { return static_cast<int>(QDir(m_folder->path()).entryList(QDir::Files).size()); }

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_path;
    QString m_kept;
};

TESSERA_TEST(KeptFileTest);
#include "keptfiletest.moc"
