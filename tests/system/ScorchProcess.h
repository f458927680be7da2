// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <chrono>
#include <string>
#include <sys/types.h>
#include <vector>

/// The real `scorch` program, running beside the test. Signals have their usual meaning in it,
/// whatever the test inherited. It is killed, by its id, if it outlives this object.
class ScorchProcess {
public:
    /// How the program's standard output is connected.
    enum class Output { pipe, terminal };

    /// Starts it. `arguments` without the program's name; `environment` adds to the test's own.
    explicit ScorchProcess(const std::vector<std::string> &arguments,
                           const std::vector<std::string> &environment = {},
                           Output output = Output::pipe);
    ~ScorchProcess();
    ScorchProcess(const ScorchProcess &) = delete;
    ScorchProcess &operator=(const ScorchProcess &) = delete;

    /// Reads until its standard output holds the text; false if it ends before, or after `limit`.
    bool waitForOutput(const std::string &text, std::chrono::seconds limit = usualLimit);
    void sendSignal(int signal) const;
    /// Closes our end of its standard output, as a reader that goes away does.
    void closeOutput();
    /// Reads to the end and waits for it; its exit status, or 128 + the signal that ended it. Fails
    /// the test after `limit`.
    int wait(std::chrono::seconds limit = usualLimit);

    const std::string &output() const { return output_; }
    const std::string &errors() const { return errors_; }

private:
    static constexpr std::chrono::seconds usualLimit{60};

    bool readSome(std::chrono::steady_clock::time_point deadline);
    void takeFrom(int &descriptor, std::string &text);

    pid_t process_ = -1;
    int outputEnd_ = -1;
    int errorEnd_ = -1;
    int exitStatus_ = -1;
    std::string output_;
    std::string errors_;
};
