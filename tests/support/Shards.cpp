// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/support/Shards.h"

#include <cstdlib>
#include <spawn.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

constexpr const char *markName = "TEST_IS_SHARD";

pid_t startAgain(std::vector<char *> arguments) {
    pid_t child = -1;
    arguments.push_back(nullptr);
    if (posix_spawn(&child, "/proc/self/exe", nullptr, nullptr, arguments.data(), environ) != 0) {
        return -1;
    }
    return child;
}

bool succeeds(pid_t child) {
    int status = 0;
    return child > 0 && waitpid(child, &status, 0) == child && WIFEXITED(status) &&
           WEXITSTATUS(status) == EXIT_SUCCESS;
}

} // namespace

bool isShard() {
    return std::getenv(markName) != nullptr;
}

int runShards(int count, char **arguments, int shards, const std::function<void()> &prepare) {
    setenv(markName, "1", 1);
    std::vector<char *> all(arguments, arguments + count);
    std::string brief = "--gtest_brief=1";
    if (count == 1) {
        all.push_back(brief.data());
    } else {
        shards = 1;
    }
    setenv("GTEST_TOTAL_SHARDS", std::to_string(shards).c_str(), 1);
    std::vector<pid_t> children;
    for (int shard = 0; shard < shards; ++shard) {
        setenv("GTEST_SHARD_INDEX", std::to_string(shard).c_str(), 1);
        if (prepare) {
            prepare();
        }
        children.push_back(startAgain(all));
    }
    int exitStatus = EXIT_SUCCESS;
    for (const pid_t child : children) {
        exitStatus = succeeds(child) ? exitStatus : EXIT_FAILURE;
    }
    return exitStatus;
}
