// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/JsonReporter.h"

#include "cli/DriveChoice.h"
#include "cli/Json.h"

#include <string_view>

namespace cli {
namespace {

std::string_view stageName(BurnStage stage) {
    switch (stage) {
    case BurnStage::checking:
        return "checking";
    case BurnStage::waitingForDisc:
        return "waitingForDisc";
    case BurnStage::preparing:
        return "preparing";
    case BurnStage::openingTrack:
        return "openingTrack";
    case BurnStage::writingTrack:
        return "writingTrack";
    case BurnStage::closedTrack:
        return "closedTrack";
    case BurnStage::closedSession:
        return "closedSession";
    case BurnStage::finishing:
        return "finishing";
    case BurnStage::verifying:
        return "verifying";
    case BurnStage::cancelling:
        return "cancelling";
    }
    return {};
}

} // namespace

void JsonReporter::step(const BurnStep &step) {
    JsonObject object("stage");
    object.add("stage", stageName(step.stage));
    if (step.track != 0) {
        object.add("track", step.track).add("tracks", step.tracks);
    }
    output().write(object.line());
}

void JsonReporter::checking(const std::string &name, std::int64_t index, std::int64_t count) {
    output().write(
        JsonObject("checking").add("name", name).add("index", index).add("count", count).line());
}

void JsonReporter::refused(const RefusedFile &file, RefusalKind kind) {
    const bool isProtected = kind == RefusalKind::protectedFile;
    output().write(JsonObject("refused")
                       .addPath(file.path.native())
                       .add("kind", isProtected ? "protected" : "incompatible")
                       .add("reason", file.reason)
                       .line());
    TextReporter::refused(file, kind);
}

void JsonReporter::progress(double fraction, std::uint64_t leftFrames) {
    output().write(JsonObject("progress")
                       .addFraction("fraction", fraction)
                       .add("leftFrames", leftFrames)
                       .line());
}

void JsonReporter::finished(const BurnSummary &summary) {
    const bool audio = summary.kind == DiscKind::audio;
    JsonObject object("done");
    object.add("name", summary.discName)
        .add("drive", summary.driveName)
        .add(audio ? "tracks" : "items", summary.items)
        .add(audio ? "frames" : "bytes", summary.capacity)
        .add("verified", summary.verified)
        .add("leftOut", std::uint64_t{summary.leftOut});
    output().write(object.line());
}

void JsonReporter::failed(const ScorchError &error) {
    output().write(JsonObject("error")
                       .add("code", std::int64_t{error.code()})
                       .add("message", error.localizedDescription())
                       .add("detail", error.detail())
                       .line());
    TextReporter::failed(error);
}

void JsonReporter::cancelled(const ScorcherDevice *device) {
    JsonObject object("cancelled");
    if (device != nullptr) {
        object.add("disc", discWord(*device));
    }
    output().write(object.line());
    TextReporter::cancelled(device);
}

} // namespace cli
