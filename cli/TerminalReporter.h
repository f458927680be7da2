// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "cli/TextReporter.h"

#include <optional>

namespace cli {

/// What the one line of a terminal shows.
struct ProgressLine {
    std::string text; ///< UTF-8, safe to print.
    std::optional<double> fraction;
    std::optional<std::uint64_t> leftFrames; ///< CD frames.
};

/// The line, at most so many columns wide: "Writing track 3 of 12  [=====>    ]  45 %  1:23 left".
/// Where there is little room, the bar goes first, then the time left; the text is cut last.
std::string progressLineText(const ProgressLine &line, std::size_t columns);

/// One line that is rewritten in place. It is cleared before any other text and at the end, so that
/// the terminal is left as it was.
class TerminalReporter : public TextReporter {
public:
    using TextReporter::TextReporter;
    ~TerminalReporter() override;

    void step(const BurnStep &step) override;
    void checking(const std::string &name, std::int64_t index, std::int64_t count) override;
    void refused(const RefusedFile &file, RefusalKind kind) override;
    void progress(double fraction, std::uint64_t leftFrames) override;
    void finished(const BurnSummary &summary) override;
    void failed(const ScorchError &error) override;
    void cancelled(const ScorcherDevice *device) override;

private:
    void draw();
    void clear();

    ProgressLine line_;
    bool drawn_ = false;
};

} // namespace cli
