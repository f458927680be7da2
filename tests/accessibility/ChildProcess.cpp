// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/accessibility/ChildProcess.h"

#include <gtest/gtest.h>

#include <array>
#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr int lineLimit = 30'000; // Milliseconds.
constexpr int endLimit = 10'000;
constexpr int lineDescriptor = 3;

int exitCodeOf(int status) {
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

} // namespace

ChildProcess::ChildProcess(const std::vector<std::string> &arguments, const std::string &log)
    : name_(arguments.front()) {
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0) {
        ADD_FAILURE() << "no pipe";
        return;
    }
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, log.c_str(),
                                     O_WRONLY | O_CREAT | O_APPEND, 0600);
    posix_spawn_file_actions_adddup2(&actions, STDOUT_FILENO, STDERR_FILENO);
    posix_spawn_file_actions_adddup2(&actions, ends[1], lineDescriptor);
    std::string setpriv = "setpriv";
    std::string onParentsEnd = "--pdeathsig";
    std::string signal = "TERM";
    posix_spawnattr_t attributes;
    posix_spawnattr_init(&attributes);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETPGROUP);
    // A test that crashes or is ended takes the program with it.
    std::vector<char *> raw = {setpriv.data(), onParentsEnd.data(), signal.data()};
    for (const std::string &argument : arguments) {
        raw.push_back(const_cast<char *>(argument.c_str())); // NOLINT: what the call asks for
    }
    raw.push_back(nullptr);
    if (posix_spawnp(&process_, raw[0], &actions, &attributes, raw.data(), environ) != 0) {
        ADD_FAILURE() << "cannot start " << name_;
        process_ = -1;
    }
    posix_spawnattr_destroy(&attributes);
    posix_spawn_file_actions_destroy(&actions);
    close(ends[1]);
    pipe_ = ends[0];
}

ChildProcess::~ChildProcess() {
    end();
    if (pipe_ >= 0) {
        close(pipe_);
    }
}

std::string ChildProcess::readLine() {
    std::string line;
    for (;;) {
        pollfd ready{pipe_, POLLIN, 0};
        char letter = 0;
        if (poll(&ready, 1, lineLimit) <= 0 || read(pipe_, &letter, 1) != 1) {
            ADD_FAILURE() << name_ << " does not say where it is";
            return {};
        }
        if (letter == '\n') {
            return line;
        }
        line += letter;
    }
}

bool ChildProcess::isRunning() {
    int status = 0;
    if (process_ > 0 && waitpid(process_, &status, WNOHANG) == process_) {
        exitCode_ = exitCodeOf(status);
        kill(-process_, SIGTERM); // What it has left behind.
        process_ = -1;
    }
    return process_ > 0;
}

int ChildProcess::end() {
    if (isRunning()) {
        kill(-process_, SIGTERM);
        return waitForEnd();
    }
    return exitCode_;
}

int ChildProcess::waitForEnd() {
    const int descriptor = static_cast<int>(syscall(SYS_pidfd_open, process_, 0));
    pollfd ended{descriptor, POLLIN, 0};
    if (descriptor >= 0 && poll(&ended, 1, endLimit) <= 0) {
        ADD_FAILURE() << name_ << " does not end";
        kill(-process_, SIGKILL);
    }
    if (descriptor >= 0) {
        close(descriptor);
    }
    int status = 0;
    waitpid(process_, &status, 0);
    process_ = -1;
    exitCode_ = exitCodeOf(status);
    return exitCode_;
}
