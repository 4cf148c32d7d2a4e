#include "support/testmain.h"

#ifdef TESSERA_WINDOW_TESTS
#include <QApplication>
using TestApplication = QApplication;
#else
#include <QCoreApplication>
using TestApplication = QCoreApplication;
#endif

// test_ROOM --class NAME ... runs one class, with the toolkit's own arguments behind the name.
int main(int argc, char* argv[])
{
    QByteArray only;
    if (argc > 2 && qstrcmp(argv[1], "--class") == 0) {
        only = argv[2];
        argv[2] = argv[0];
        argc -= 2;
        argv += 2;
    }
    qputenv("LC_ALL", "C.UTF-8");
    TestApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("Tessera"));
    int failures = 0;
    bool isKnown = only.isEmpty();
    for (const auto& make : tessera::test::suites()) {
        const auto suite = make();
        if (!only.isEmpty() && only != suite->metaObject()->className())
            continue;
        isKnown = true;
        failures += QTest::qExec(suite.get(), argc, argv);
    }
    return failures == 0 && isKnown ? 0 : 1;
}
