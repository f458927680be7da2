// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/DrivesCommand.h"

#include "cli/DisplayText.h"
#include "cli/DriveChoice.h"
#include "cli/Json.h"
#include "engine/ScorcherDevice.h"

#include <algorithm>
#include <memory>
#include <thread>
#include <vector>

namespace cli {
namespace {

using Handles = std::vector<std::unique_ptr<ScorcherDevice>>;

/// All drives examine their discs at the same time.
void awaitExamination(const Handles &handles, std::chrono::milliseconds patience) {
    constexpr std::chrono::milliseconds interval(10);
    const auto end = std::chrono::steady_clock::now() + patience;
    const auto isChecking = [](const auto &device) {
        return device->isCheckingDisc();
    };
    while (std::any_of(handles.begin(), handles.end(), isChecking) &&
           std::chrono::steady_clock::now() < end) {
        std::this_thread::sleep_for(interval);
    }
}

/// What is not known is left out.
std::string jsonLine(const ScorcherDevice &device) {
    const ScorcherDeviceDescription description = device.description();
    JsonObject object("drive");
    object.add("name", device.deviceName())
        .add("disc", discWord(device))
        .add("freeFrames", device.freeTimeOfDisc())
        .add("freeBytes", device.freeSizeOfDisc());
    const auto addText = [&object](const char *key, const std::string &text) {
        if (!text.empty()) {
            object.add(key, text);
        }
    };
    addText("medium", description.medium);
    addText("vendor", description.vendor);
    addText("model", description.model);
    addText("revision", description.revision);
    addText("problem", description.problem);
    if (!description.writeSpeeds.empty()) {
        object.add("writeSpeeds", description.writeSpeeds);
    }
    if (!description.node.empty()) {
        object.addPath(description.node.native());
    }
    return object.line();
}

std::string textLine(const ScorcherDevice &device) {
    const std::string drive = driveText(device);
    return displayText(device.deviceName()) + ": " + discText(device) +
           (drive.empty() ? "" : "; " + drive) + '\n';
}

} // namespace

ExitCode runDrivesCommand(const DrivesRequest &request, Output &output, Output &errors,
                          std::chrono::milliseconds patience) {
    Handles handles;
    for (const std::string &name : ScorcherDevice::devices()) {
        handles.push_back(ScorcherDevice::initWithDeviceName(name));
    }
    awaitExamination(handles, patience);
    for (const std::unique_ptr<ScorcherDevice> &device : handles) {
        output.write(request.json ? jsonLine(*device) : textLine(*device));
    }
    if (handles.empty()) {
        errors.write("scorch: no CD drive was found\n");
    }
    if (output.failed()) {
        errors.write("scorch: cannot write to the standard output\n");
        return ExitCode::failed;
    }
    return ExitCode::done;
}

} // namespace cli
