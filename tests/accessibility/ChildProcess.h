// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <string>
#include <sys/types.h>
#include <vector>

/// A program that runs beside the tests, in a process group of its own. Its destructor ends the
/// group, with what the program has started in it, and waits for the program.
class ChildProcess {
public:
    /// Starts a program (found in PATH). Its descriptor 3 is the write end of a pipe; its outputs
    /// go to the file `log`.
    ChildProcess(const std::vector<std::string> &arguments, const std::string &log);
    ~ChildProcess();
    ChildProcess(const ChildProcess &) = delete;
    ChildProcess &operator=(const ChildProcess &) = delete;

    /// The first line that the program writes to its descriptor 3; empty, with a test failure, if
    /// none comes in time.
    std::string readLine();

    bool isRunning();
    pid_t process() const { return process_; }

    /// Asks the program to end and waits until it has. Its exit code, or 128 + a signal.
    int end();

private:
    int waitForEnd();

    pid_t process_ = -1;
    int pipe_ = -1;
    int exitCode_ = -1;
    std::string name_;
};
