// SPDX-License-Identifier: GPL-2.0-or-later
// Starts the tests with the testbed's library preloaded, which must be known before a program
// begins: so it begins twice.
#include <gmock/gmock.h>

#include <cstdlib>
#include <unistd.h>

int main(int argc, char *argv[]) {
    if (std::getenv("UDEV_TESTBED") == nullptr) {
        setenv("UDEV_TESTBED", "1", 1);
        setenv("LD_PRELOAD", "libumockdev-preload.so.0", 1);
        // The sanitizer's runtime is in the program, but not in front of the preloaded library.
        setenv("ASAN_OPTIONS", "verify_asan_link_order=0", 1);
        setenv("TSAN_OPTIONS", "suppressions=" UDEV_RACES, 1);
        execv("/proc/self/exe", argv);
        return EXIT_FAILURE;
    }
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
