// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/drive/ImageDriveSource.h"

#include "scorch/drive/ImageDrive.h"
#include "scorch/drive/ImageDriveOptions.h"

#include <cstddef>
#include <cstdlib>
#include <iostream>
#include <string>

namespace scorch {

std::vector<std::shared_ptr<Drive>> ImageDriveSource::search(Observer /*observer*/) {
    const char *const setting = std::getenv("SCORCH_IMAGE_DRIVE");
    const std::vector<ImageDriveOptions> options =
        parseImageDriveOptions(setting != nullptr ? setting : "", [](const std::string &complaint) {
            std::cerr << "SCORCH_IMAGE_DRIVE: " + complaint + '\n';
        });
    const std::vector<std::string> names = imageDriveNames(options);
    std::vector<std::shared_ptr<Drive>> drives;
    for (std::size_t index = 0; index < options.size(); ++index) {
        drives.push_back(ImageDrive::create(options[index], names[index]));
    }
    return drives;
}

} // namespace scorch
