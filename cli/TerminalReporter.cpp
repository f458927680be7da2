// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/TerminalReporter.h"

#include "cli/DisplayText.h"
#include "engine/ScorchString.h"

#include <algorithm>
#include <cmath>

namespace cli {
namespace {

constexpr std::size_t narrowestBar = 10;
constexpr std::size_t widestBar = 40;

std::string bar(double fraction, std::size_t columns) {
    const std::size_t inside = columns - 2;
    const auto filled =
        std::min(inside, static_cast<std::size_t>(fraction * static_cast<double>(inside)));
    std::string text(filled, '=');
    if (filled < inside) {
        text += '>';
        text.append(inside - filled - 1, ' ');
    }
    return '[' + text + ']';
}

/// Rounded down: a hundred is shown only at the end.
std::string percent(double fraction) {
    const std::string number = std::to_string(static_cast<int>(std::floor(fraction * 100)));
    return std::string(3 - std::min<std::size_t>(3, number.size()), ' ') + number + " %";
}

} // namespace

std::string progressLineText(const ProgressLine &line, std::size_t columns) {
    if (!line.fraction) {
        return elided(line.text, columns);
    }
    const double fraction = std::clamp(*line.fraction, 0.0, 1.0);
    const std::size_t textColumns = columnsOf(line.text);
    std::string rest = "  " + percent(fraction);
    if (line.leftFrames) {
        const auto frames = static_cast<std::int64_t>(*line.leftFrames);
        const std::string left = "  " + stringWithDurationFramesEnabled(frames, false) + " left";
        if (textColumns + rest.size() + left.size() <= columns) {
            rest += left;
        }
    }
    if (textColumns + 2 + narrowestBar + rest.size() <= columns) {
        const std::size_t room = columns - textColumns - 2 - rest.size();
        return line.text + "  " + bar(fraction, std::min(room, widestBar)) + rest;
    }
    return rest.size() < columns ? elided(line.text, columns - rest.size()) + rest
                                 : elided(line.text, columns);
}

TerminalReporter::~TerminalReporter() {
    clear();
}

void TerminalReporter::step(const BurnStep &step) {
    line_.text = stepText(step);
    draw();
}

void TerminalReporter::checking(const std::string &name, std::int64_t index, std::int64_t count) {
    line_.text = "Checking " + std::to_string(index) + " of " + std::to_string(count) + ": " +
                 displayText(name);
    draw();
}

void TerminalReporter::refused(const RefusedFile &file, RefusalKind kind) {
    clear();
    TextReporter::refused(file, kind);
}

void TerminalReporter::progress(double fraction, std::uint64_t leftFrames) {
    line_.fraction = fraction;
    line_.leftFrames = leftFrames;
    draw();
}

void TerminalReporter::finished(const BurnSummary &summary) {
    clear();
    TextReporter::finished(summary);
}

void TerminalReporter::failed(const ScorchError &error) {
    clear();
    TextReporter::failed(error);
}

void TerminalReporter::cancelled(const ScorcherDevice *device) {
    clear();
    TextReporter::cancelled(device);
}

void TerminalReporter::draw() {
    // The last column stays free: some terminals start a new line as soon as it is filled.
    output().write('\r' + progressLineText(line_, output().columns() - 1) + "\x1b[K");
    drawn_ = true;
}

void TerminalReporter::clear() {
    if (drawn_) {
        output().write("\r\x1b[K");
        drawn_ = false;
    }
}

} // namespace cli
