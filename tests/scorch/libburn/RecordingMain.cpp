// SPDX-License-Identifier: GPL-2.0-or-later
// Starts the tests with the recorder preloaded: what is preloaded must be known before a program
// begins, so it begins twice. Drives belong to the process that uses them.
#include "tests/support/Shards.h"
#include "tests/support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <cstdlib>
#include <list>

int main(int count, char **arguments) {
    if (isShard()) {
        testing::InitGoogleMock(&count, arguments);
        return RUN_ALL_TESTS();
    }
    // The sanitizer's runtime is in the program, but not in front of the preloaded library.
    setenv("ASAN_OPTIONS", "verify_asan_link_order=0", 1);
    setenv("LD_PRELOAD", RECORDER_LIBRARY, 1);
    std::list<TemporaryFolder> folders;
    return runShards(count, arguments, 8, [&folders] {
        setenv("CD_RECORDER", folders.emplace_back().path().c_str(), 1);
    });
}
