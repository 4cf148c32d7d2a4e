#include "core/failure.h"

#include "support/testmain.h"

#include <QTranslator>

using namespace tessera;

namespace {

class OneText : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char*, const char* key, const char*, int) const override
    {
        return qstrcmp(key, "key") == 0 ? QStringLiteral("%2 after %1") : QString();
    }
};

} // namespace

class FailureTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void argumentsFillTheirPlaceholders()
    {
        OneText texts;
        QCoreApplication::installTranslator(&texts);
        QCOMPARE((Failure{"key", {QStringLiteral("one"), QStringLiteral("two")}}.text()),
                 QStringLiteral("two after one"));
    }

    void aPercentSignInAnArgumentStays()
    {
        OneText texts;
        QCoreApplication::installTranslator(&texts);
        QCOMPARE((Failure{"key", {QStringLiteral("100%2"), QStringLiteral("two")}}.text()),
                 QStringLiteral("two after 100%2"));
        QCOMPARE((Failure{"key", {QStringLiteral("one"), QStringLiteral("%1%")}}.text()),
                 QStringLiteral("%1% after one"));
    }
};

TESSERA_TEST(FailureTest);
#include "failuretest.moc"
