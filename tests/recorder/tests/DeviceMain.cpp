// SPDX-License-Identifier: GPL-2.0-or-later
// Starts the tests with the recorder preloaded and a folder of their own for its drives: what is
// preloaded must be known before a program begins, so it begins twice.
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

int main(int count, char **arguments) {
    if (std::getenv("CD_RECORDER") != nullptr) {
        testing::InitGoogleTest(&count, arguments);
        return RUN_ALL_TESTS();
    }
    const TemporaryFolder folder;
    setenv("CD_RECORDER", folder.path().c_str(), 1);
    setenv("LD_PRELOAD", RECORDER_LIBRARY, 1);
    // The sanitizer's runtime is in the program, but not in front of the preloaded library.
    setenv("ASAN_OPTIONS", "verify_asan_link_order=0", 1);
    pid_t child = 0;
    if (posix_spawn(&child, "/proc/self/exe", nullptr, nullptr, arguments, environ) != 0) {
        return EXIT_FAILURE;
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : EXIT_FAILURE;
}
