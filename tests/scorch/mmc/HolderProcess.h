// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <sys/wait.h>
#include <unistd.h>

/// A child that has open what this program had open when it was made, until it goes.
class HolderProcess {
public:
    HolderProcess() {
        EXPECT_EQ(::pipe(ready_) | ::pipe(done_), 0);
        process_ = ::fork();
        char byte = 0;
        if (process_ == 0) {
            ::close(done_[1]);
            [[maybe_unused]] const auto told = ::write(ready_[1], &byte, 1);
            [[maybe_unused]] const auto heard = ::read(done_[0], &byte, 1);
            ::_exit(0);
        }
        EXPECT_EQ(::read(ready_[0], &byte, 1), 1);
    }
    ~HolderProcess() {
        for (const int descriptor : {ready_[0], ready_[1], done_[0], done_[1]}) {
            ::close(descriptor);
        }
        ::waitpid(process_, nullptr, 0);
    }
    HolderProcess(const HolderProcess &) = delete;
    HolderProcess &operator=(const HolderProcess &) = delete;

    std::string number() const { return std::to_string(process_); }

private:
    int ready_[2] = {};
    int done_[2] = {};
    pid_t process_ = -1;
};
