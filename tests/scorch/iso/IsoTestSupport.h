// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/iso/IsoImage.h"
#include "scorch/iso/IsoTree.h"
#include "scorch/support/SectorSource.h"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <stop_token>
#include <string>
#include <vector>

namespace isotest {

/// Scans a path that must be accepted.
scorch::IsoScan scanned(const std::filesystem::path &path);

/// Entries for paths, each under its own name.
std::vector<scorch::IsoRootEntry> entriesOf(const std::vector<std::filesystem::path> &paths);

/// isoImageSize, which must succeed.
std::uint64_t predictedSize(const std::vector<scorch::IsoRootEntry> &entries);

/// IsoImage::create, which must succeed.
std::unique_ptr<scorch::IsoImage> laidOut(const std::vector<scorch::IsoRootEntry> &entries,
                                          const std::string &volumeName = "Test");

/// The rest of a source, read in pieces of `pieceBytes`; the error if it ends with one.
struct Streamed {
    std::string bytes;
    std::optional<scorch::Interruption> failure;
};
Streamed streamed(scorch::SectorSource &source, std::size_t pieceBytes = 256 * std::size_t{1024});

/// Makes an image of the entries, which must succeed, and writes it to `to`.
void writeImage(const std::vector<scorch::IsoRootEntry> &entries, const std::filesystem::path &to,
                const std::string &volumeName = "Test");

/// The two trees of names in an image.
enum class Names { rockRidge, joliet };

/// Takes an image apart into the new folder `to`.
void extract(const std::filesystem::path &image, const std::filesystem::path &to,
             Names names = Names::rockRidge);

/// Where a piece of a file's content lies in an image, as another program reads it.
struct Extent {
    std::string path; ///< With a leading slash.
    std::int64_t first = 0;
    std::int64_t blocks = 0;
    std::uint64_t bytes = 0; ///< Of the whole file.
};

/// The extents of all files below a path of an image, in no particular order.
std::vector<Extent> extentsOf(const std::filesystem::path &image, const std::string &below = "/");

/// Whether two folders hold the same names with the same contents; reports each difference.
void expectSameTree(const std::filesystem::path &expected, const std::filesystem::path &actual);

/// Runs a check as somebody whom permissions bind: in a child of another user if this is root's
/// process, else right here. The check must only read, and report by its answer alone.
bool asOrdinaryUser(const std::function<bool()> &check);

/// The error in an outcome that must be one, not a cancellation.
template <class Value>
ScorchError errorOf(const scorch::Outcome<Value> &outcome) {
    if (outcome.ok() || scorch::isCancelled(outcome.error())) {
        return {ScorchErrorCode::internal, "no error where one was expected"};
    }
    return std::get<ScorchError>(outcome.error());
}

} // namespace isotest
