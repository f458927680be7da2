// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/support/Shards.h"

#include <gmock/gmock.h>

int main(int count, char **arguments) {
    if (!isShard()) {
        return runShards(count, arguments, 6);
    }
    testing::InitGoogleMock(&count, arguments);
    return RUN_ALL_TESTS();
}
