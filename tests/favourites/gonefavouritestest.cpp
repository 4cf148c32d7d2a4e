#include "favourites/gonefavourites.h"

#include "favouritetexts.h"
#include "support/testmain.h"

using namespace tessera;
using namespace tessera::test;

namespace {

GameRecord named(std::string_view name)
{
    GameRecord record;
    record[Field::Name] = name;
    return record;
}

} // namespace

class GoneFavouritesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void setsThatTheCatalogueDoesNotHaveAreGone()
    {
        const std::array favourites{named("pong"), named("old"), named("pong"), named("Pong"), named("old")};
        const std::array catalogue{pong, bare};
        QCOMPARE(goneFavourites(favourites, catalogue).records(), (std::vector<std::uint32_t>{1, 3, 4}));
    }

    void withoutACatalogueNoneIs()
    {
        const std::array favourites{named("pong")};
        QCOMPARE(goneFavourites(favourites, {}).count(), std::size_t(0));
        QCOMPARE(goneFavourites({}, {}).size(), std::size_t(0));
    }
};

TESSERA_TEST(GoneFavouritesTest);
#include "gonefavouritestest.moc"
