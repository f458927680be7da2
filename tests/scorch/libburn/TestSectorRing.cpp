// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/libburn/SectorRing.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <atomic>
#include <future>
#include <thread>

using namespace scorch;
using namespace std::chrono_literals;

namespace {

/// Puts as much of `text` as there is room for in one piece.
std::size_t put(SectorRing &ring, std::string_view text) {
    const auto room = ring.room();
    const std::size_t count = std::min(room.size(), text.size());
    std::transform(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(count), room.begin(),
                   [](char byte) { return static_cast<std::byte>(byte); });
    ring.put(count);
    return count;
}

std::string take(SectorRing &ring, std::size_t bytes) {
    std::string text(bytes, '?');
    text.resize(ring.take(std::as_writable_bytes(std::span(text))));
    return text;
}

} // namespace

TEST(SectorRing, GivesBackWhatWasPutAcrossItsEnd) {
    SectorRing ring(8);
    EXPECT_EQ(put(ring, "abcdef"), 6U);
    EXPECT_EQ(take(ring, 4), "abcd");
    EXPECT_EQ(put(ring, "ghij"), 2U); // To the end of its memory,
    EXPECT_EQ(put(ring, "ij"), 2U);   // then from its beginning.
    EXPECT_EQ(take(ring, 6), "efghij");
    EXPECT_EQ(ring.bytesTaken(), 10U);
}

TEST(SectorRing, FullRingHasNoRoom) {
    SectorRing ring(4);
    put(ring, "abcd");
    EXPECT_TRUE(ring.isFull());
    EXPECT_TRUE(ring.room().empty());
    take(ring, 1);
    EXPECT_FALSE(ring.isFull());
}

TEST(SectorRing, FinishedRingGivesItsRestThenNothing) {
    SectorRing ring(8);
    put(ring, "abc");
    ring.finish();
    EXPECT_EQ(take(ring, 8), "abc");
    EXPECT_EQ(take(ring, 8), "");
}

TEST(SectorRing, WhoTakesWaitsForAWholeBuffer) {
    SectorRing ring(8);
    put(ring, "ab");
    auto taken = std::async(std::launch::async, [&ring] { return take(ring, 4); });
    EXPECT_EQ(taken.wait_for(20ms), std::future_status::timeout);
    put(ring, "cd");
    EXPECT_EQ(taken.get(), "abcd");
}

TEST(SectorRing, AbortWakesWhoTakesAndGivesNothing) {
    SectorRing ring(8);
    put(ring, "ab");
    auto taken = std::async(std::launch::async, [&ring] { return take(ring, 4); });
    ring.abort();
    EXPECT_EQ(taken.get(), "");
}

TEST(SectorRing, AbortWakesWhoWaitsForRoom) {
    SectorRing ring(4);
    put(ring, "abcd");
    auto waiting = std::async(std::launch::async, [&ring] { ring.waitForRoom(4, 60s); });
    ring.abort();
    EXPECT_EQ(waiting.wait_for(30s), std::future_status::ready);
}

TEST(SectorRing, NothingIsLostByAnAbortThatIsTakenBack) {
    SectorRing ring(8);
    put(ring, "abcd");
    ring.abort();
    EXPECT_EQ(take(ring, 4), "");
    EXPECT_EQ(ring.bytesTaken(), 0U);
    ring.resume();
    EXPECT_EQ(take(ring, 4), "abcd");
}

TEST(SectorRing, RoomIsWaitedForNoLongerThanAsked) {
    SectorRing ring(4);
    put(ring, "abcd");
    ring.waitForRoom(1, 1ms);
    EXPECT_TRUE(ring.isFull());
}

TEST(SectorRing, CarriesAllBetweenTwoThreads) {
    SectorRing ring(1000);
    constexpr int pieces = 20'000;
    std::thread producer([&ring] {
        for (int piece = 0; piece < pieces; ++piece) {
            std::string text(7, static_cast<char>('a' + piece % 26));
            for (std::string_view rest = text; !rest.empty();) {
                ring.waitForRoom(rest.size(), 1s);
                rest.remove_prefix(put(ring, rest));
            }
        }
        ring.finish();
    });
    for (int piece = 0; piece < pieces; ++piece) {
        ASSERT_EQ(take(ring, 7), std::string(7, static_cast<char>('a' + piece % 26)));
    }
    EXPECT_EQ(take(ring, 7), "");
    producer.join();
}
