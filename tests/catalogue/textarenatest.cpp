#include "catalogue/textarena.h"

#include "support/testmain.h"

#include <string>
#include <utility>
#include <vector>

using namespace tessera;

class TextArenaTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void emptyTextHasData()
    {
        TextArena arena;
        QVERIFY(arena.add("").data() != nullptr);
        QVERIFY(arena.add(std::string_view()).data() != nullptr);
        QCOMPARE(arena.add("").size(), std::size_t(0));
    }

    void textsOutliveTheirSource()
    {
        TextArena arena;
        std::string source = "pong";
        const std::string_view kept = arena.add(source);
        source = "gone";
        QCOMPARE(kept, std::string_view("pong"));
    }

    void textsStayWhereTheyAreWhileTheArenaGrowsAndMoves()
    {
        TextArena arena;
        std::vector<std::pair<std::string_view, std::string>> added;
        for (int i = 0; i < 50'000; ++i) {
            std::string text = std::to_string(i) + " of many texts";
            added.emplace_back(arena.add(text), text);
        }
        TextArena moved = std::move(arena);
        TextArena assigned;
        assigned.add("given up");
        assigned = std::move(moved);
        assigned.add("more");
        for (const auto& [view, text] : added)
            QCOMPARE(view, std::string_view(text));
    }

    void textLongerThanABlockIsKept()
    {
        TextArena arena;
        const std::string_view before = arena.add("before");
        const std::string longText(3'000'000, 'x');
        const std::string_view kept = arena.add(longText);
        const std::string_view after = arena.add("after");
        QCOMPARE(kept, std::string_view(longText));
        QCOMPARE(before, std::string_view("before"));
        QCOMPARE(after, std::string_view("after"));
    }

    void reservedRoomIsUsedWithoutGrowing()
    {
        TextArena arena;
        arena.reserve(2'000'000);
        const std::size_t capacity = arena.capacity();
        QVERIFY(capacity >= 2'000'000);
        for (int i = 0; i < 1000; ++i)
            arena.add(std::string(2000, 'x'));
        QCOMPARE(arena.capacity(), capacity);
    }

    void movedFromArenaCanBeUsedAgain()
    {
        TextArena arena;
        arena.add("first");
        const TextArena other = std::move(arena);
        // NOLINTBEGIN(bugprone-use-after-move,clang-analyzer-cplusplus.Move): this is what is tested
        QCOMPARE(arena.capacity(), std::size_t(0));
        QCOMPARE(arena.add("second"), std::string_view("second"));
        // NOLINTEND(bugprone-use-after-move,clang-analyzer-cplusplus.Move)
        QVERIFY(other.capacity() > 0);
    }
};

TESSERA_TEST(TextArenaTest);
#include "textarenatest.moc"
