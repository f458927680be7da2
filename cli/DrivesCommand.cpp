// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/DrivesCommand.h"

#include "cli/DisplayText.h"
#include "cli/DriveChoice.h"
#include "cli/Json.h"
#include "engine/ScorcherDevice.h"

namespace cli {

ExitCode runDrivesCommand(const DrivesRequest &request, Output &output, Output &errors) {
    const std::vector<std::string> drives = ScorcherDevice::devices();
    for (const std::string &name : drives) {
        const std::unique_ptr<ScorcherDevice> device = ScorcherDevice::initWithDeviceName(name);
        if (request.json) {
            output.write(JsonObject("drive")
                             .add("name", name)
                             .add("disc", discWord(*device))
                             .add("freeFrames", device->freeTimeOfDisc())
                             .add("freeBytes", device->freeSizeOfDisc())
                             .line());
        } else {
            output.write(displayText(name) + ": " + discText(*device) + '\n');
        }
    }
    if (drives.empty()) {
        errors.write("scorch: no CD drive was found\n");
    }
    if (output.failed()) {
        errors.write("scorch: cannot write to the standard output\n");
        return ExitCode::failed;
    }
    return ExitCode::done;
}

} // namespace cli
