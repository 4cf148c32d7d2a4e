#include "support/testmain.h"

#ifdef TESSERA_WINDOW_TESTS
#include <QApplication>
using TestApplication = QApplication;
#else
#include <QCoreApplication>
using TestApplication = QCoreApplication;
#endif

int main(int argc, char* argv[])
{
    qputenv("LC_ALL", "C.UTF-8");
    TestApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("Tessera"));
    int failures = 0;
    for (const auto& make : tessera::test::suites())
        failures += QTest::qExec(make().get(), argc, argv);
    return failures == 0 ? 0 : 1;
}
