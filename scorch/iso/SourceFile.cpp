// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/iso/SourceFile.h"

#include "scorch/support/Text.h"
#include "scorch/support/Utf8.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace scorch {
namespace {

std::string nameOf(const IsoNode &node) {
    return readableText(node.path.native());
}

ScorchError changed(const IsoNode &node, std::string detail) {
    return {ScorchErrorCode::sourceChanged,
            localized("“%@” is not the same as when it was added to the list. Remove it from the "
                      "list, add it again, and start over.",
                      {nameOf(node)}),
            std::move(detail)};
}

ScorchError failed(const IsoNode &node, int error) {
    const std::string detail = std::generic_category().message(error);
    if (error == ENOENT || error == ENOTDIR) {
        return {ScorchErrorCode::sourceMissing,
                localized("“%@” is no longer there. Put it back, or remove it from the list.",
                          {nameOf(node)}),
                detail};
    }
    if (error == EACCES || error == EPERM) {
        return {ScorchErrorCode::sourceUnreadable,
                localized("You have no permission to read “%@”. Change that, or remove it from the "
                          "list.",
                          {nameOf(node)}),
                detail};
    }
    return {ScorchErrorCode::sourceUnreadable,
            localized("“%@” cannot be read (%@). Check the disk or the network that it is on, or "
                      "remove it from the list.",
                      {nameOf(node), detail}),
            detail};
}

/// Nothing, or what differs, for the log.
const char *difference(const IsoNode &node, const struct stat &status) {
    if (!S_ISREG(status.st_mode)) {
        return "no regular file any more";
    }
    if (status.st_dev != node.device || status.st_ino != node.inode) {
        return "another file stands there";
    }
    if (static_cast<std::uint64_t>(status.st_size) != node.size) {
        return "another size";
    }
    const bool sameTime =
        status.st_mtim.tv_sec == node.mtime && status.st_mtim.tv_nsec == node.mtimeNanoseconds;
    return sameTime ? nullptr : "written to";
}

} // namespace

std::optional<ScorchError> whyNotAsScanned(const IsoNode &node) {
    struct stat status {};
    if (stat(node.path.c_str(), &status) != 0) {
        return failed(node, errno);
    }
    if (const char *const what = difference(node, status)) {
        return changed(node, what);
    }
    if (faccessat(AT_FDCWD, node.path.c_str(), R_OK, AT_EACCESS) != 0) {
        return failed(node, errno);
    }
    return std::nullopt;
}

SourceFile::SourceFile(IsoNodeRef node, FileDescriptor file)
    : node_(std::move(node)), file_(std::move(file)) {}

Result<SourceFile> SourceFile::open(IsoNodeRef node) {
    struct stat status {};
    if (stat(node->path.c_str(), &status) != 0) {
        return failed(*node, errno);
    }
    if (const char *const what = difference(*node, status)) {
        return changed(*node, what);
    }
    // Should a FIFO take its place just now, opening it without waiting does no harm.
    FileDescriptor file(::open(node->path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
    if (!file.valid()) {
        return failed(*node, errno);
    }
    return SourceFile(std::move(node), std::move(file));
}

Result<void> SourceFile::read(std::span<std::byte> buffer) {
    while (!buffer.empty()) {
        const ssize_t count = ::read(file_.get(), buffer.data(), buffer.size());
        if (count < 0 && errno == EINTR) {
            continue;
        }
        if (count < 0) {
            return failed(*node_, errno);
        }
        if (count == 0) {
            return changed(*node_, "ends early");
        }
        buffer = buffer.subspan(static_cast<std::size_t>(count));
        position_ += static_cast<std::uint64_t>(count);
    }
    struct stat status {};
    if (remaining() == 0) {
        if (fstat(file_.get(), &status) != 0) {
            return failed(*node_, errno);
        }
        if (const char *const what = difference(*node_, status)) {
            return changed(*node_, what);
        }
    }
    return {};
}

} // namespace scorch
