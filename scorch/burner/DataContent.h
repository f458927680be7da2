// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/burner/Item.h"
#include "scorch/iso/IsoImage.h"
#include "scorch/support/DiscContent.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <stop_token>
#include <string>
#include <vector>

namespace scorch {

/// The size of the image that a list of data items makes, in bytes. Blocks; any thread.
Outcome<std::uint64_t> imageSizeOf(const std::vector<ItemRef> &items, const std::stop_token &stop);

/// A data disc: one track that holds an ISO 9660 image. Used by one thread.
class DataContent final : public DiscContent {
public:
    static Outcome<std::unique_ptr<DiscContent>>
    create(const std::vector<ItemRef> &items, std::string discName, const std::stop_token &stop);

    const std::string &volumeName() const override { return discName_; }
    std::size_t trackCount() const override { return 1; }
    const TrackLayout &track(std::size_t index) const override;
    Outcome<std::unique_ptr<SectorSource>> openTrack(std::size_t index,
                                                     const std::stop_token &stop) override;
    std::string nameAt(std::size_t index, std::int64_t sector) const override;

private:
    DataContent(std::string discName, std::unique_ptr<IsoImage> image);

    std::string discName_;
    std::unique_ptr<IsoImage> image_;
    TrackLayout layout_;
};

} // namespace scorch
