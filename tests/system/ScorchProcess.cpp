// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/system/ScorchProcess.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <pty.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using Clock = std::chrono::steady_clock;

std::vector<char *> pointersTo(std::vector<std::string> &texts) {
    std::vector<char *> pointers;
    pointers.reserve(texts.size() + 1);
    for (std::string &text : texts) {
        pointers.push_back(text.data());
    }
    pointers.push_back(nullptr);
    return pointers;
}

std::vector<std::string> environmentWith(const std::vector<std::string> &more) {
    std::vector<std::string> all = more;
    for (char **entry = environ; *entry != nullptr; ++entry) {
        const std::string text = *entry;
        const std::string name = text.substr(0, text.find('=') + 1);
        const bool replaced =
            std::any_of(more.begin(), more.end(), [&name](const std::string &own) {
                return own.compare(0, name.size(), name) == 0;
            });
        if (!replaced) {
            all.push_back(text);
        }
    }
    return all;
}

struct Ends {
    int ours = -1;
    int theirs = -1;
};

Ends makePipe() {
    std::array<int, 2> ends{};
    EXPECT_EQ(pipe2(ends.data(), O_CLOEXEC), 0);
    return {ends[0], ends[1]};
}

Ends makeTerminal() {
    Ends ends;
    winsize size{};
    size.ws_col = 60;
    size.ws_row = 24;
    EXPECT_EQ(openpty(&ends.ours, &ends.theirs, nullptr, nullptr, &size), 0);
    fcntl(ends.ours, F_SETFD, FD_CLOEXEC);
    fcntl(ends.theirs, F_SETFD, FD_CLOEXEC);
    return ends;
}

} // namespace

ScorchProcess::ScorchProcess(const std::vector<std::string> &arguments,
                             const std::vector<std::string> &environment, Output output) {
    const Ends out = output == Output::pipe ? makePipe() : makeTerminal();
    const Ends err = makePipe();
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_adddup2(&actions, out.theirs, STDOUT_FILENO);
    posix_spawn_file_actions_adddup2(&actions, err.theirs, STDERR_FILENO);
    posix_spawnattr_t attributes;
    posix_spawnattr_init(&attributes);
    sigset_t all;
    sigset_t none;
    sigfillset(&all);
    sigemptyset(&none);
    posix_spawnattr_setsigdefault(&attributes, &all);
    posix_spawnattr_setsigmask(&attributes, &none);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETSIGMASK);
    std::vector<std::string> words = {SCORCH_PROGRAM};
    words.insert(words.end(), arguments.begin(), arguments.end());
    std::vector<std::string> variables = environmentWith(environment);
    EXPECT_EQ(posix_spawn(&process_, SCORCH_PROGRAM, &actions, &attributes,
                          pointersTo(words).data(), pointersTo(variables).data()),
              0);
    posix_spawnattr_destroy(&attributes);
    posix_spawn_file_actions_destroy(&actions);
    close(out.theirs);
    close(err.theirs);
    outputEnd_ = out.ours;
    errorEnd_ = err.ours;
}

ScorchProcess::~ScorchProcess() {
    if (process_ > 0) {
        kill(process_, SIGKILL);
        waitpid(process_, nullptr, 0);
    }
    for (const int end : {outputEnd_, errorEnd_}) {
        if (end >= 0) {
            close(end);
        }
    }
}

bool ScorchProcess::waitForOutput(const std::string &text, std::chrono::seconds limit) {
    const Clock::time_point deadline = Clock::now() + limit;
    while (output_.find(text) == std::string::npos) {
        if (!readSome(deadline)) {
            return false;
        }
    }
    return true;
}

void ScorchProcess::sendSignal(int signal) const {
    if (process_ > 0) {
        kill(process_, signal);
    }
}

void ScorchProcess::closeOutput() {
    close(outputEnd_);
    outputEnd_ = -1;
}

int ScorchProcess::wait(std::chrono::seconds limit) {
    const Clock::time_point deadline = Clock::now() + limit;
    while (readSome(deadline)) {
    }
    if (outputEnd_ >= 0 || errorEnd_ >= 0) {
        ADD_FAILURE() << "still running after " << limit.count() << " s\n" << output_ << errors_;
        return -1;
    }
    int status = 0;
    if (process_ > 0 && waitpid(process_, &status, 0) == process_) {
        process_ = -1;
        exitStatus_ = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
    }
    return exitStatus_;
}

/// Waits for something to read. False once both outputs are at their end, or past the deadline.
bool ScorchProcess::readSome(Clock::time_point deadline) {
    if (outputEnd_ < 0 && errorEnd_ < 0) {
        return false;
    }
    const auto left =
        std::chrono::duration_cast<std::chrono::milliseconds>(deadline - Clock::now()).count();
    std::array<pollfd, 2> ends = {{{outputEnd_, POLLIN, 0}, {errorEnd_, POLLIN, 0}}};
    if (left <= 0 || poll(ends.data(), ends.size(), static_cast<int>(left)) <= 0) {
        return false;
    }
    if (ends[0].revents != 0) {
        takeFrom(outputEnd_, output_);
    }
    if (ends[1].revents != 0) {
        takeFrom(errorEnd_, errors_);
    }
    return true;
}

void ScorchProcess::takeFrom(int &descriptor, std::string &text) {
    std::array<char, 65536> buffer{};
    const ssize_t count = read(descriptor, buffer.data(), buffer.size());
    if (count > 0) {
        text.append(buffer.data(), static_cast<std::size_t>(count));
    } else if (count == 0 || errno != EINTR) { // A terminal reports its end as an error.
        close(descriptor);
        descriptor = -1;
    }
}
