// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/burner/DataContent.h"

#include "scorch/support/Utf8.h"

#include <utility>

namespace scorch {
namespace {

/// The roots of the image, in the order of the list.
std::vector<IsoRootEntry> isoEntries(const std::vector<ItemRef> &items) {
    std::vector<IsoRootEntry> entries;
    entries.reserve(items.size());
    for (const ItemRef &item : items) {
        const auto &data = static_cast<const DataItem &>(*item);
        entries.push_back({data.node, data.imageName});
    }
    return entries;
}

} // namespace

Outcome<std::uint64_t> imageSizeOf(const std::vector<ItemRef> &items, const std::stop_token &stop) {
    return isoImageSize(isoEntries(items), stop);
}

DataContent::DataContent(std::string discName, std::unique_ptr<IsoImage> image)
    : discName_(std::move(discName)), image_(std::move(image)) {
    layout_.kind = TrackKind::data;
    layout_.sectors = static_cast<std::int64_t>(image_->size() / dataSectorBytes);
}

Outcome<std::unique_ptr<DiscContent>> DataContent::create(const std::vector<ItemRef> &items,
                                                          std::string discName,
                                                          const std::stop_token &stop) {
    auto image = IsoImage::create(isoEntries(items), discName, stop);
    if (!image) {
        return image.error();
    }
    return std::unique_ptr<DiscContent>(new DataContent(std::move(discName), std::move(*image)));
}

const TrackLayout &DataContent::track(std::size_t /*index*/) const {
    return layout_;
}

Outcome<std::unique_ptr<SectorSource>> DataContent::openTrack(std::size_t /*index*/,
                                                              const std::stop_token & /*stop*/) {
    return image_->openSource();
}

std::string DataContent::nameAt(std::size_t /*index*/, std::int64_t sector) const {
    return readableText(image_->fileAt(sector));
}

} // namespace scorch
