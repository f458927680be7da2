// SPDX-License-Identifier: GPL-2.0-or-later
// Starts the tests with the recorder preloaded and a folder of their own for its drives: what is
// preloaded must be known before a program begins, so it begins twice.
#include "tests/support/QtTests.h"
#include "tests/support/TemporaryFolder.h"

#include <QByteArray>

#include <cstdlib>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

int main(int argc, char *argv[]) {
    if (qEnvironmentVariableIsSet("CD_RECORDER")) {
        return runQtTests(argc, argv);
    }
    const TemporaryFolder drives;
    qputenv("CD_RECORDER", drives.path().c_str());
    qputenv("LD_PRELOAD", RECORDER_LIBRARY);
    qputenv("SCORCH_UDEV", "0"); // Which knows nothing of these drives.
    // The sanitizer's runtime is in the program, but not in front of the preloaded library.
    qputenv("ASAN_OPTIONS", "verify_asan_link_order=0");
    pid_t child = 0;
    if (posix_spawn(&child, "/proc/self/exe", nullptr, nullptr, argv, environ) != 0) {
        return EXIT_FAILURE;
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : EXIT_FAILURE;
}
