// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/DriveChoice.h"

#include "cli/DisplayText.h"
#include "engine/ScorchString.h"
#include "engine/ScorcherDevice.h"

#include <algorithm>
#include <iterator>

namespace cli {
namespace {

std::string listed(const std::vector<std::string> &drives) {
    std::string text;
    for (const std::string &drive : drives) {
        text += "\n  " + displayText(drive);
    }
    return text;
}

/// The engine names image drives so; all others have names of their makers.
std::vector<std::string> imageDrivesOf(const std::vector<std::string> &drives) {
    std::vector<std::string> images;
    std::copy_if(drives.begin(), drives.end(), std::back_inserter(images),
                 [](const std::string &name) { return name.starts_with("Disc image ("); });
    return images;
}

} // namespace

std::variant<DriveProblem, std::string> chooseDrive(const std::vector<std::string> &all,
                                                    const std::string &wanted, DriveKind kind) {
    const std::vector<std::string> drives = kind == DriveKind::any ? all : imageDrivesOf(all);
    if (drives.empty()) {
        return DriveProblem{"No CD drive was found. Connect one, or burn to a folder with "
                            "--image-drive."};
    }
    if (!wanted.empty()) {
        if (std::find(drives.begin(), drives.end(), wanted) != drives.end()) {
            return wanted;
        }
        return DriveProblem{"There is no drive named \"" + displayText(wanted) +
                            "\". These are there:" + listed(drives)};
    }
    if (drives.size() > 1) {
        return DriveProblem{"There are several drives; choose one with --drive:" + listed(drives),
                            ExitCode::usage};
    }
    return drives.front();
}

std::string discWord(const ScorcherDevice &device) {
    if (device.cdBurnEnabled()) { // The name reads the other way.
        return "unusable";
    }
    if (device.isCheckingDisc()) {
        return "checking";
    }
    if (!device.isDiscInDevice()) {
        return "none";
    }
    if (!device.isCDDisc()) {
        return "other";
    }
    return device.isDiscBlank() ? "blank" : "written";
}

std::optional<std::string> discProblem(const ScorcherDevice &device) {
    const std::string drive = '"' + displayText(device.deviceName()) + '"';
    const std::string word = discWord(device);
    if (word == "unusable") {
        return "The drive " + drive + " cannot write CDs.";
    }
    if (word == "none") {
        return "There is no disc in " + drive + ". Insert a blank CD and try again.";
    }
    if (word == "other") {
        return "The disc in " + drive + " is not a CD. Insert a blank CD and try again.";
    }
    if (word == "written") {
        return "The disc in " + drive + " is not blank. Insert a blank CD and try again.";
    }
    return std::nullopt;
}

std::string discText(const ScorcherDevice &device) {
    const std::string word = discWord(device);
    if (word == "unusable") {
        return "cannot write CDs";
    }
    if (word == "checking") {
        return "examining the disc";
    }
    if (word == "none") {
        return "no disc";
    }
    if (word == "other") {
        return "a disc that is not a CD";
    }
    if (word == "written") {
        return "a CD that is not blank";
    }
    return "blank CD, " + stringWithDurationFramesEnabled(device.freeTimeOfDisc(), false) + " or " +
           stringWithFilesize(device.freeSizeOfDisc()) + " free";
}

} // namespace cli
