// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/window/ChildProcess.h"

#include <gtest/gtest.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::seconds timeToEnd{5};

int millisecondsUntil(Clock::time_point deadline) {
    const auto left =
        std::chrono::duration_cast<std::chrono::milliseconds>(deadline - Clock::now()).count();
    return left > 0 ? static_cast<int>(left) : 0;
}

/// In the new process: becomes the program, or ends.
[[noreturn]] void become(char *const *arguments, int input, int output, int errors) {
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    dup2(input, STDIN_FILENO);
    dup2(output, STDOUT_FILENO);
    dup2(errors, STDERR_FILENO);
    execvp(arguments[0], arguments);
    _exit(127);
}

} // namespace

ChildProcess::ChildProcess(const std::vector<std::string> &arguments,
                           const std::string &errorFile) {
    std::array<int, 2> input{-1, -1};
    std::array<int, 2> output{-1, -1};
    EXPECT_EQ(pipe2(input.data(), O_CLOEXEC), 0);
    EXPECT_EQ(pipe2(output.data(), O_CLOEXEC), 0);
    const int errors =
        open(errorFile.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, S_IRUSR | S_IWUSR);
    EXPECT_GE(errors, 0) << errorFile;
    std::vector<std::string> words = arguments;
    std::vector<char *> raw;
    raw.reserve(words.size() + 1);
    for (std::string &word : words) {
        raw.push_back(word.data());
    }
    raw.push_back(nullptr);
    // What it writes to a program that has ended must come back as an error, not as a signal.
    signal(SIGPIPE, SIG_IGN); // NOLINT: fails for no signal that exists
    process_ = fork();
    if (process_ == 0) {
        signal(SIGPIPE, SIG_DFL); // NOLINT
        become(raw.data(), input[0], output[1], errors);
    }
    EXPECT_GT(process_, 0) << arguments.front();
    isOver_ = process_ <= 0;
    close(input[0]);
    close(output[1]);
    close(errors);
    inputEnd_ = input[1];
    outputEnd_ = output[0];
}

ChildProcess::~ChildProcess() {
    if (!isOver_) {
        kill(process_, SIGTERM);
        if (!waitForEnd(timeToEnd)) {
            kill(process_, SIGKILL);
            waitpid(process_, &status_, 0);
        }
    }
    close(inputEnd_);
    close(outputEnd_);
}

bool ChildProcess::writeLine(std::string_view line) {
    std::string rest(line);
    rest += '\n';
    while (!rest.empty()) {
        const ssize_t count = write(inputEnd_, rest.data(), rest.size());
        if (count < 0 && errno != EINTR) {
            return false;
        }
        rest.erase(0, count > 0 ? static_cast<std::size_t>(count) : 0);
    }
    return true;
}

bool ChildProcess::readLine(std::string &line, std::chrono::seconds limit) {
    const Clock::time_point deadline = Clock::now() + limit;
    std::size_t end = 0;
    while ((end = unread_.find('\n')) == std::string::npos) {
        pollfd ready{outputEnd_, POLLIN, 0};
        if (poll(&ready, 1, millisecondsUntil(deadline)) <= 0) {
            return false;
        }
        std::array<char, 65536> buffer{};
        const ssize_t count = read(outputEnd_, buffer.data(), buffer.size());
        if (count <= 0) {
            return false;
        }
        unread_.append(buffer.data(), static_cast<std::size_t>(count));
    }
    line = unread_.substr(0, end);
    unread_.erase(0, end + 1);
    return true;
}

bool ChildProcess::isRunning() {
    return !waitForEnd(std::chrono::milliseconds(0));
}

int ChildProcess::wait(std::chrono::seconds limit) {
    if (!waitForEnd(limit)) {
        return -1;
    }
    return WIFEXITED(status_) ? WEXITSTATUS(status_) : 128 + WTERMSIG(status_);
}

bool ChildProcess::waitForEnd(std::chrono::milliseconds limit) {
    if (isOver_) {
        return true;
    }
    const int handle = static_cast<int>(syscall(SYS_pidfd_open, process_, 0));
    pollfd ended{handle, POLLIN, 0};
    const bool hasEnded = poll(&ended, 1, static_cast<int>(limit.count())) > 0;
    close(handle);
    isOver_ = hasEnded && waitpid(process_, &status_, 0) == process_;
    return isOver_;
}
