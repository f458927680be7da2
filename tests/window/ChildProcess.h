// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <chrono>
#include <string>
#include <string_view>
#include <sys/types.h>
#include <vector>

/// A program that runs beside the test, with its standard input and output in the test's hands and
/// its standard error in a file. It never outlives this object, nor the test's process.
class ChildProcess {
public:
    /// Starts it; `arguments` begins with its name, found in PATH. Its errors are appended to
    /// `errorFile`. A failure to start fails the test.
    ChildProcess(const std::vector<std::string> &arguments, const std::string &errorFile);
    /// Asks it to end (SIGTERM), and kills it if it has not after some seconds.
    ~ChildProcess();
    ChildProcess(const ChildProcess &) = delete;
    ChildProcess &operator=(const ChildProcess &) = delete;

    /// One line more for its standard input. False if it has ended.
    bool writeLine(std::string_view line);
    /// The next line of its standard output, without the line's end. False if it has ended, or if
    /// `limit` is over.
    bool readLine(std::string &line, std::chrono::seconds limit);

    /// Whether it still runs.
    bool isRunning();
    /// The exit status, or 128 + the signal that ended it; -1 if it does not end within `limit`.
    int wait(std::chrono::seconds limit);
    pid_t id() const { return process_; }

private:
    bool waitForEnd(std::chrono::milliseconds limit);

    pid_t process_ = -1; ///< The id stays when it has ended; see isOver_.
    bool isOver_ = false;
    int status_ = 0;
    int inputEnd_ = -1;
    int outputEnd_ = -1;
    std::string unread_;
};
