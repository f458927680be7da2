// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/TextReporter.h"

#include "cli/DisplayText.h"
#include "cli/DriveChoice.h"

namespace cli {

void TextReporter::step(const BurnStep &step) {
    output_.write(stepText(step) + '\n');
}

void TextReporter::refused(const RefusedFile &file, RefusalKind /*kind*/) {
    writeError(refusalText(file));
}

void TextReporter::finished(const BurnSummary &summary) {
    output_.write(summaryText(summary) + '\n');
    if (const std::string text = leftOutText(summary.leftOut); !text.empty()) {
        writeError(text);
    }
}

void TextReporter::failed(const ScorchError &error) {
    const std::string detail = error.detail().empty() ? "" : " [" + error.detail() + ']';
    writeError(displayText(error.localizedDescription() + detail));
}

void TextReporter::cancelled(const ScorcherDevice *device) {
    writeError(device != nullptr ? "cancelled. Disc now: " + discText(*device) : "cancelled");
}

void TextReporter::writeError(const std::string &text) {
    errors_.write("scorch: " + text + '\n');
}

} // namespace cli
