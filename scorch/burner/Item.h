// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/BurnItem.h"
#include "scorch/iso/IsoTree.h"

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>

namespace scorch {

/// What every burner's list consists of; all burn items of the process are of this kind. Filled by
/// the check, immutable once it is in a list: any thread may read it then.
class Item : public BurnItem {
public:
    virtual ~Item() = default;
    virtual ItemProperties properties() const = 0;

    std::string displayName; ///< UTF-8.
};

using ItemRef = std::shared_ptr<const Item>;

/// A song.
class AudioItem final : public Item {
public:
    ItemProperties properties() const override;

    std::filesystem::path path;
    std::string artist; ///< UTF-8; empty where nobody knows.
    std::string title;
    std::uint64_t samples = 0; ///< Sample frames at 44.1 kHz.
    std::int64_t sectors = 0;  ///< That it takes on the disc.
};

/// A file or folder.
class DataItem final : public Item {
public:
    ItemProperties properties() const override;

    IsoNodeRef node;
    std::string imageName;             ///< In the root of the image, bytes, unique in the list.
    std::uint64_t fileBytes = 0;       ///< Of all files in it.
    std::uint64_t upperBoundBytes = 0; ///< Never less than what it adds to an image.
};

inline ItemProperties AudioItem::properties() const {
    return {{kScorchItemDisplayNameKey, displayName}, {kScorchItemDurationKey, sectors}};
}

inline ItemProperties DataItem::properties() const {
    return {{kScorchItemDisplayNameKey, displayName},
            {kScorchItemFileSizeKey, static_cast<std::int64_t>(fileBytes)}};
}

} // namespace scorch
