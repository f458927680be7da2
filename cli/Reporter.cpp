// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/Reporter.h"

#include "cli/DisplayText.h"
#include "engine/ScorchString.h"

#include <string_view>

namespace cli {
namespace {

std::string counted(std::uint64_t count, std::string_view one, std::string_view many) {
    return std::to_string(count) + ' ' + std::string(count == 1 ? one : many);
}

std::string ofTrack(std::string_view verb, const BurnStep &step) {
    return std::string(verb) + " track " + std::to_string(step.track) + " of " +
           std::to_string(step.tracks);
}

} // namespace

std::string stepText(const BurnStep &step) {
    switch (step.stage) {
    case BurnStage::checking:
        return "Checking files";
    case BurnStage::waitingForDisc:
        return "Waiting for the drive to examine the disc";
    case BurnStage::preparing:
        return "Preparing";
    case BurnStage::openingTrack:
        return ofTrack("Opening", step);
    case BurnStage::writingTrack:
        return ofTrack("Writing", step);
    case BurnStage::closedTrack:
        return ofTrack("Closed", step);
    case BurnStage::closedSession:
        return "Closed the session";
    case BurnStage::finishing:
        return "Finishing the disc";
    case BurnStage::verifying:
        return "Verifying";
    case BurnStage::cancelling:
        return "Cancelling";
    }
    return {};
}

std::string summaryText(const BurnSummary &summary) {
    const auto items = static_cast<std::uint64_t>(summary.items);
    const auto capacity = static_cast<std::int64_t>(summary.capacity);
    const bool audio = summary.kind == DiscKind::audio;
    const std::string what =
        audio ? counted(items, "track", "tracks") + ", " +
                    stringWithDurationFramesEnabled(capacity, false)
              : counted(items, "item", "items") + ", " + stringWithFilesize(capacity);
    return "Burned \"" + displayText(summary.discName) + "\" (" + what + ") with " +
           displayText(summary.driveName) + (summary.verified ? " and verified it." : ".");
}

std::string leftOutText(std::size_t leftOut) {
    return leftOut == 0 ? std::string()
                        : counted(leftOut, "file was", "files were") + " left out of the disc.";
}

std::string refusalText(const RefusedFile &file) {
    return displayText(file.path.native()) + ": " + displayText(file.reason);
}

} // namespace cli
