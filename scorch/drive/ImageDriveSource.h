// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/drive/DriveSource.h"

#include <memory>
#include <vector>

namespace scorch {

/// The image drives that the environment asks for (SCORCH_IMAGE_DRIVE, see parseImageDriveOptions).
/// They never come or go. What the setting holds that is of no use is told on standard error.
class ImageDriveSource final : public DriveSource {
public:
    std::vector<std::shared_ptr<Drive>> search(Observer observer) override;
};

} // namespace scorch
