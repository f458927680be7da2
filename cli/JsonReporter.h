// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "cli/TextReporter.h"

namespace cli {

/// A JSON object a line on the first output, for programs. People still find refused files and
/// errors in words on the second.
class JsonReporter : public TextReporter {
public:
    using TextReporter::TextReporter;

    void step(const BurnStep &step) override;
    void checking(const std::string &name, std::int64_t index, std::int64_t count) override;
    void refused(const RefusedFile &file, RefusalKind kind) override;
    void progress(double fraction, std::uint64_t leftFrames) override;
    void finished(const BurnSummary &summary) override;
    void failed(const ScorchError &error) override;
    void cancelled(const ScorcherDevice *device) override;
};

} // namespace cli
