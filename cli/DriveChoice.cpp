// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/DriveChoice.h"

#include "cli/DisplayText.h"
#include "engine/ScorchString.h"
#include "engine/ScorcherDevice.h"

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <iterator>
#include <system_error>

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

/// Speeds as people know them, multiples of 1x, fastest first.
std::string speedsText(const std::vector<int> &speeds) {
    constexpr double singleSpeed = 176.4;
    std::string text;
    for (const int speed : speeds) {
        text += ' ' + std::to_string(std::lround(speed / singleSpeed)) + 'x';
    }
    return text;
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

std::string driveNamed(const std::vector<std::string> &drives, const std::string &wanted) {
    if (wanted.find('/') == std::string::npos ||
        std::find(drives.begin(), drives.end(), wanted) != drives.end()) {
        return wanted;
    }
    std::error_code error;
    const std::filesystem::path node = std::filesystem::canonical(wanted, error);
    for (const std::string &drive : drives) {
        const std::filesystem::path known =
            ScorcherDevice::initWithDeviceName(drive)->description().node;
        if (!known.empty() && (known == wanted || (!error && known == node))) {
            return drive;
        }
    }
    return wanted;
}

std::optional<std::string> discProblem(const ScorcherDevice &device) {
    if (const std::string problem = device.description().problem; !problem.empty()) {
        return problem;
    }
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
    if (word == "written" && device.description().medium == "CD-RW") {
        return "The CD-RW in " + drive +
               " is not blank. Erase it, or insert a blank CD, and try again.";
    }
    if (word == "written") {
        return "The disc in " + drive + " is not blank. Insert a blank CD and try again.";
    }
    return std::nullopt;
}

std::string discText(const ScorcherDevice &device) {
    const ScorcherDeviceDescription description = device.description();
    const std::string word = discWord(device);
    if (word == "checking") {
        return "examining the disc";
    }
    if (!description.problem.empty()) {
        return displayText(description.problem);
    }
    if (word == "unusable") {
        return "cannot write CDs";
    }
    if (word == "none") {
        return "no disc";
    }
    const std::string kind = description.medium.empty() ? "" : " (" + description.medium + ")";
    if (word == "other") {
        return "a disc that is not a CD" + kind;
    }
    if (word == "written") {
        return "a CD that is not blank" + kind;
    }
    return "blank " + (description.medium.empty() ? "CD" : description.medium) + ", " +
           stringWithDurationFramesEnabled(device.freeTimeOfDisc(), false) + " or " +
           stringWithFilesize(device.freeSizeOfDisc()) + " free";
}

std::string driveText(const ScorcherDevice &device) {
    const ScorcherDeviceDescription description = device.description();
    std::vector<std::string> parts;
    if (discWord(device) == "blank" && !description.writeSpeeds.empty()) {
        parts.push_back("written at" + speedsText(description.writeSpeeds));
    }
    const std::string maker = description.vendor.empty() ? "" : description.vendor + ' ';
    if (!description.model.empty()) {
        parts.push_back(displayText(maker + description.model));
    }
    if (!description.revision.empty()) {
        parts.push_back("firmware " + displayText(description.revision));
    }
    if (!parts.empty()) { // A folder stands in its drive's name.
        parts.push_back(displayText(description.node.native()));
    }
    std::string text;
    for (const std::string &part : parts) {
        text += (text.empty() ? "" : ", ") + part;
    }
    return text;
}

} // namespace cli
