// SPDX-License-Identifier: GPL-2.0-or-later
#include "crate/QuitSignals.h"

#include "crate/Log.h"

#include <QSocketNotifier>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstddef>
#include <fcntl.h>
#include <unistd.h>

namespace crate {

namespace {

constexpr std::array<int, 3> quitSignals{SIGTERM, SIGINT, SIGHUP};

// What the handler needs: it may call nothing but write.
std::array<int, 2> pipeEnds{-1, -1};
std::array<struct sigaction, quitSignals.size()> formerActions;

void onSignal(int /*number*/) {
    const int formerError = errno;
    const char byte = 1;
    const ssize_t ignored = write(pipeEnds[1], &byte, 1);
    static_cast<void>(ignored);
    errno = formerError;
}

} // namespace

QuitSignals::QuitSignals(QObject *parent) : QObject(parent) {
    if (pipe2(pipeEnds.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
        qCWarning(log) << "No pipe: signals end the program at once.";
        return;
    }
    auto *notifier = new QSocketNotifier(pipeEnds[0], QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, &QuitSignals::readPipe);
    struct sigaction action = {};
    action.sa_handler = onSignal;
    action.sa_flags = SA_RESTART;
    for (std::size_t index = 0; index < quitSignals.size(); ++index) {
        sigaction(quitSignals[index], &action, &formerActions[index]);
    }
}

QuitSignals::~QuitSignals() {
    if (pipeEnds[0] < 0) {
        return;
    }
    for (std::size_t index = 0; index < quitSignals.size(); ++index) {
        sigaction(quitSignals[index], &formerActions[index], nullptr);
    }
    for (int &end : pipeEnds) {
        close(end);
        end = -1;
    }
}

void QuitSignals::readPipe() {
    std::array<char, 16> bytes{};
    while (read(pipeEnds[0], bytes.data(), bytes.size()) > 0) {
    }
    emit arrived();
}

} // namespace crate
