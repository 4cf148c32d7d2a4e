#pragma once

#include <QObject>
#include <QTest>

#include <functional>
#include <memory>
#include <vector>

namespace tessera::test {

/// The test classes of one program; each TESSERA_TEST adds its own before main() runs.
inline std::vector<std::function<std::unique_ptr<QObject>()>>& suites()
{
    static std::vector<std::function<std::unique_ptr<QObject>()>> list;
    return list;
}

template <class Suite>
struct Registered {
    Registered()
    {
        suites().push_back([] { return std::make_unique<Suite>(); });
    }
};

} // namespace tessera::test

#define TESSERA_TEST(Suite) static const tessera::test::Registered<Suite> registered##Suite
