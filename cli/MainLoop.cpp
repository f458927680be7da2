// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/MainLoop.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdint>
#include <poll.h>
#include <sys/eventfd.h>
#include <sys/signalfd.h>
#include <unistd.h>
#include <utility>

namespace cli {
namespace {

/// Those of the signals that the program was not told to ignore.
sigset_t heeded(const std::vector<int> &signals) {
    sigset_t set;
    sigemptyset(&set);
    for (const int signal : signals) {
        struct sigaction action {};
        sigaction(signal, nullptr, &action);
        if (action.sa_handler != SIG_IGN) { // NOLINT: the macro casts an integer
            sigaddset(&set, signal);
        }
    }
    return set;
}

} // namespace

MainLoop::MainLoop(const std::vector<int> &signals)
    : wakeDescriptor_(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {
    const sigset_t set = heeded(signals);
    pthread_sigmask(SIG_BLOCK, &set, nullptr);
    signalDescriptor_ = signalfd(-1, &set, SFD_CLOEXEC | SFD_NONBLOCK);
}

MainLoop::~MainLoop() {
    close(signalDescriptor_);
    close(wakeDescriptor_);
}

void MainLoop::post(std::function<void()> task) {
    {
        const std::lock_guard lock(mutex_);
        tasks_.push_back(std::move(task));
        if (tasks_.size() > 1) {
            return; // The one before has woken the loop.
        }
    }
    const std::uint64_t one = 1;
    // Can only fail when the counter is full, and then the loop is awake.
    [[maybe_unused]] const ssize_t written = write(wakeDescriptor_, &one, sizeof one);
}

int MainLoop::run() {
    while (!quitting_) {
        std::array<pollfd, 2> sources = {
            {{wakeDescriptor_, POLLIN, 0}, {signalDescriptor_, POLLIN, 0}}};
        if (poll(sources.data(), sources.size(), -1) < 0 && errno != EINTR) {
            quit(1);
        }
        if (sources[1].revents != 0) {
            readSignals();
        }
        if (sources[0].revents != 0) {
            runTasks();
        }
    }
    return exitCode_;
}

void MainLoop::quit(int exitCode) {
    if (!quitting_) {
        quitting_ = true;
        exitCode_ = exitCode;
    }
}

/// Takes what is there and no more, so that a flood of tasks does not keep signals waiting.
void MainLoop::runTasks() {
    std::uint64_t count = 0;
    [[maybe_unused]] const ssize_t got = read(wakeDescriptor_, &count, sizeof count);
    std::deque<std::function<void()>> tasks;
    {
        const std::lock_guard lock(mutex_);
        tasks.swap(tasks_);
    }
    for (const std::function<void()> &task : tasks) {
        if (quitting_) {
            return;
        }
        task();
    }
}

void MainLoop::readSignals() {
    signalfd_siginfo information{};
    while (read(signalDescriptor_, &information, sizeof information) ==
           static_cast<ssize_t>(sizeof information)) {
        if (signalHandler_ && !quitting_) {
            signalHandler_();
        }
    }
}

} // namespace cli
