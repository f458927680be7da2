// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "cli/Output.h"
#include "cli/Reporter.h"

namespace cli {

/// A line for each step, for logs and pipes. Errors and refused files go to the second output.
class TextReporter : public Reporter {
public:
    /// Neither is owned.
    TextReporter(Output &output, Output &errors) : output_(output), errors_(errors) {}

    void step(const BurnStep &step) override;
    void checking(const std::string &, std::int64_t, std::int64_t) override {}
    void refused(const RefusedFile &file, RefusalKind kind) override;
    void progress(double, std::uint64_t) override {}
    void finished(const BurnSummary &summary) override;
    void failed(const ScorchError &error) override;
    void cancelled(const ScorcherDevice *device) override;

protected:
    Output &output() { return output_; }

    /// A line of trouble, after the program's name.
    void writeError(const std::string &text);

private:
    Output &output_;
    Output &errors_;
};

} // namespace cli
