// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "cli/Output.h"

#include <string>

/// An output of the program that goes into memory.
class CapturedOutput {
public:
    CapturedOutput();
    ~CapturedOutput();
    CapturedOutput(const CapturedOutput &) = delete;
    CapturedOutput &operator=(const CapturedOutput &) = delete;

    cli::Output &output() { return output_; }
    /// All that was written so far.
    std::string text() const;

private:
    int descriptor_;
    cli::Output output_;
};
