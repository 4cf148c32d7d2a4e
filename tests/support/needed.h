#pragma once

#include <QTest>

/// Skips a test where what it needs is not installed. Where everything was installed for the tests, as
/// test.sh does, a test that is skipped for that would never be missed: there it fails.
#define TESSERA_NEEDS(isThere, what)                                                                         \
    do {                                                                                                     \
        if (!(isThere)) {                                                                                    \
            if (qEnvironmentVariableIsSet("TESSERA_ALL_INSTALLED"))                                          \
                QFAIL(what " is not there, though all that the tests need was installed");                   \
            QSKIP(what " is not there");                                                                     \
        }                                                                                                    \
    } while (false)
