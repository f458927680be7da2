// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/iso/IsoImage.h"

#include "scorch/iso/ImageSource.h"
#include "scorch/iso/IsoContents.h"
#include "scorch/iso/IsoDirectories.h"
#include "scorch/iso/ReadAhead.h"
#include "scorch/iso/SourceFile.h"
#include "scorch/iso/VolumeName.h"
#include "scorch/support/DiscContent.h"
#include "scorch/support/Text.h"
#include "scorch/support/Utf8.h"

#include <utility>

namespace scorch {
namespace {

class LaidOutImage final : public IsoImage {
public:
    LaidOutImage(IsoContents contents, std::vector<std::byte> directories)
        : contents_(std::move(contents)), directories_(std::move(directories)) {}

    std::uint64_t size() const override {
        const auto behind = static_cast<std::uint64_t>(contents_.sectors() + isoTailSectors);
        return directories_.size() + behind * dataSectorBytes;
    }

    std::unique_ptr<SectorSource> openSource() override {
        return std::make_unique<ReadAhead>(std::make_unique<ImageSource>(directories_, contents_));
    }

    std::string fileAt(std::int64_t sector) const override {
        const auto first = static_cast<std::int64_t>(directories_.size() / dataSectorBytes);
        const IsoContents::File *const file = contents_.fileAt(sector - first);
        return file != nullptr ? readableText(file->pathInImage) : std::string();
    }

private:
    IsoContents contents_;
    std::vector<std::byte> directories_;
};

/// Looks at every file before anything is recorded: what is gone should not cost a disc.
Outcome<> checkFiles(const IsoContents &contents, const std::stop_token &stop) {
    for (const IsoContents::File &file : contents.files()) {
        if (stop.stop_requested()) {
            return Interruption(Cancelled{});
        }
        if (std::optional<ScorchError> error = whyNotAsScanned(*file.node)) {
            return Interruption(std::move(*error));
        }
    }
    return {};
}

} // namespace

Outcome<std::uint64_t> isoImageSize(const std::vector<IsoRootEntry> &entries,
                                    const std::stop_token &stop) {
    return isoLayoutSize(entries, IsoContents(entries), stop);
}

Outcome<std::unique_ptr<IsoImage>> IsoImage::create(const std::vector<IsoRootEntry> &entries,
                                                    const std::string &volumeName,
                                                    const std::stop_token &stop) {
    IsoContents contents(entries);
    if (Outcome<> unchanged = checkFiles(contents, stop); !unchanged) {
        return unchanged.error();
    }
    Outcome<std::vector<std::byte>> directories = isoDirectories(entries, contents, stop);
    if (!directories) {
        return directories.error();
    }
    if (!stampVolumeName(*directories, volumeName)) {
        return Interruption(ScorchError(ScorchErrorCode::internal,
                                        localized("The disc could not be given its name."),
                                        "volume descriptors not found"));
    }
    return std::unique_ptr<IsoImage>(
        std::make_unique<LaidOutImage>(std::move(contents), std::move(*directories)));
}

} // namespace scorch
