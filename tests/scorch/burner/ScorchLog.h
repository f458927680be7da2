// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/ScorchDelegate.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

class Scorcher;

/// A delegate that keeps what it is told, as words.
class ScorchLog final : public ScorchDelegate {
public:
    /// `burner` is asked for the names of items; without one they are "item".
    explicit ScorchLog(const Scorcher *burner = nullptr) : burner_(burner) {}

    std::vector<std::string> words; ///< All but progress.
    std::vector<std::pair<double, std::uint64_t>> progress;
    AddFilesResult result;
    std::optional<ScorchError> error;
    /// Called with each word, behind the entry.
    std::function<void(const std::string &)> onWord;

    bool has(const std::string &word) const;
    std::size_t count(const std::string &word) const;
    /// Whether a check or a burn has come to an end.
    bool checkOver() const { return has("check end") || has("check canceled"); }
    bool burnOver() const { return has("done") || has("canceled") || has("error"); }
    void clear();

    void allFilesDidCleared() override { note("cleared"); }
    void addFilesProgressDidStarted() override { note("check started"); }
    void addFilesProgressDidCanceled() override { note("check canceled"); }
    void addFilesProgressDidChangedIndexOf(const std::string &name, std::int64_t index,
                                           std::int64_t count) override;
    void fileDidAdded(const BurnItemRef &item) override;
    void addFilesProgressDidEnd(const AddFilesResult &what) override;
    void burnItemDidDelete(const BurnItemRef &item) override;
    void burnItemDidSorted() override { note("sorted"); }
    void burnItemsDidDelete(const std::vector<BurnItemRef> &items) override;
    void burnProgressDidStarted() override { note("started"); }
    void burnProgressDidError(const ScorchError &what) override;
    void burnProgressIsPreparing() override { note("preparing"); }
    void burnProgressDidCanceled() override { note("canceled"); }
    void burnProgressDidChanagedLefttime(double fraction, std::uint64_t lefttime) override;
    void burnProgressIsOpeningTrackOf(std::uint64_t track, std::uint64_t count) override;
    void burnProgressIsWriteingTrackOf(std::uint64_t track, std::uint64_t count) override;
    void burnProgressDidCloseTrackOf(std::uint64_t track, std::uint64_t count) override;
    void burnProgressDidCloseSession() override { note("session"); }
    void burnProgressIsFinishing() override { note("finishing"); }
    void burnProgressIsVerifying() override { note("verifying"); }
    void burnProgressDidDone() override { note("done"); }

private:
    void note(const std::string &word);
    std::string nameOf(const BurnItemRef &item) const;

    const Scorcher *burner_;
};
