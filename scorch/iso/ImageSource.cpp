// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/iso/ImageSource.h"

#include "scorch/iso/IsoDirectories.h"
#include "scorch/support/DiscContent.h"

#include <algorithm>

namespace scorch {
namespace {

/// Enough for a system call to cost nothing, little enough to stop soon on a slow disk.
constexpr std::size_t readBytes = 256 * std::size_t{1024};

} // namespace

ImageSource::ImageSource(std::span<const std::byte> directories, const IsoContents &contents)
    : directories_(directories), contents_(contents) {}

Outcome<std::size_t> ImageSource::read(std::span<std::byte> buffer, const std::stop_token &stop) {
    std::size_t filled = 0;
    while (filled < buffer.size()) {
        if (stop.stop_requested()) {
            return Interruption(Cancelled{});
        }
        const auto room = buffer.subspan(filled);
        std::size_t count = readDirectories(room);
        if (count == 0) {
            count = readZeros(room);
        }
        if (count == 0) {
            const Result<std::size_t> read = readContents(room);
            if (!read) {
                return Interruption(read.error());
            }
            count = *read;
        }
        if (count == 0) {
            break;
        }
        filled += count;
    }
    return filled;
}

std::size_t ImageSource::readDirectories(std::span<std::byte> room) {
    const std::size_t count = std::min(room.size(), directories_.size());
    std::copy_n(directories_.begin(), count, room.begin());
    directories_ = directories_.subspan(count);
    return count;
}

std::size_t ImageSource::readZeros(std::span<std::byte> room) {
    const std::size_t count = std::min(room.size(), zeros_);
    std::fill_n(room.begin(), count, std::byte{0});
    zeros_ -= count;
    return count;
}

Result<std::size_t> ImageSource::readContents(std::span<std::byte> room) {
    while (!file_ && next_ < contents_.files().size()) {
        const IsoContents::File &file = contents_.files()[next_++];
        if (file.sectors == 0) {
            continue;
        }
        Result<SourceFile> opened = SourceFile::open(file.node);
        if (!opened) {
            return opened.error();
        }
        file_.emplace(std::move(*opened));
    }
    if (!file_) {
        if (inTail_) {
            return std::size_t{0};
        }
        inTail_ = true;
        zeros_ = isoTailSectors * dataSectorBytes;
        return readZeros(room);
    }
    const auto count = static_cast<std::size_t>(
        std::min<std::uint64_t>({room.size(), readBytes, file_->remaining()}));
    if (Result<void> read = file_->read(room.first(count)); !read) {
        return read.error();
    }
    if (file_->remaining() == 0) {
        const std::uint64_t size = contents_.files()[next_ - 1].node->size;
        zeros_ = (dataSectorBytes - size % dataSectorBytes) % dataSectorBytes;
        file_.reset();
    }
    return count;
}

} // namespace scorch
