// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/support/CommandResult.h"

#include <gtest/gtest.h>

#include <array>
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

CommandResult runCommand(const std::vector<std::string> &arguments) {
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0) {
        ADD_FAILURE() << "no pipe";
        return {};
    }
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
    posix_spawn_file_actions_adddup2(&actions, ends[1], STDERR_FILENO);
    std::vector<char *> raw;
    for (const std::string &argument : arguments) {
        raw.push_back(const_cast<char *>(argument.c_str())); // NOLINT: what the call asks for
    }
    raw.push_back(nullptr);
    pid_t child = 0;
    const int error = posix_spawnp(&child, raw[0], &actions, nullptr, raw.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    close(ends[1]);
    CommandResult result;
    if (error != 0) {
        close(ends[0]);
        ADD_FAILURE() << "cannot start " << arguments[0];
        return result;
    }
    std::array<char, 4096> buffer{};
    for (ssize_t count = 0; (count = read(ends[0], buffer.data(), buffer.size())) > 0;) {
        result.output.append(buffer.data(), static_cast<std::size_t>(count));
    }
    close(ends[0]);
    int status = 0;
    waitpid(child, &status, 0);
    result.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
    return result;
}
