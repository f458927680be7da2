// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/scorch/burner/ScorchLog.h"

#include "engine/Scorcher.h"

#include <algorithm>

namespace {

std::string place(std::uint64_t number, std::uint64_t count) {
    return std::to_string(number) + '/' + std::to_string(count);
}

} // namespace

bool ScorchLog::has(const std::string &word) const {
    return count(word) > 0;
}

std::size_t ScorchLog::count(const std::string &word) const {
    return static_cast<std::size_t>(std::count(words.begin(), words.end(), word));
}

void ScorchLog::clear() {
    words.clear();
    progress.clear();
    error.reset();
}

void ScorchLog::note(const std::string &word) {
    words.push_back(word);
    if (onWord) {
        onWord(word);
    }
}

std::string ScorchLog::nameOf(const BurnItemRef &item) const {
    if (burner_ == nullptr) {
        return "item";
    }
    return std::get<std::string>(burner_->propertyOfBurnItem(item).at(kScorchItemDisplayNameKey));
}

void ScorchLog::addFilesProgressDidChangedIndexOf(const std::string &name, std::int64_t index,
                                                  std::int64_t count) {
    note("check " + name + ' ' +
         place(static_cast<std::uint64_t>(index), static_cast<std::uint64_t>(count)));
}

void ScorchLog::fileDidAdded(const BurnItemRef &item) {
    note("added " + nameOf(item));
}

void ScorchLog::addFilesProgressDidEnd(const AddFilesResult &what) {
    result = what;
    note("check end");
}

void ScorchLog::burnItemDidDelete(const BurnItemRef &item) {
    note("deleted " + nameOf(item));
}

void ScorchLog::burnItemsDidDelete(const std::vector<BurnItemRef> &items) {
    note("deleted " + std::to_string(items.size()) + " items");
}

void ScorchLog::burnProgressDidError(const ScorchError &what) {
    error = what;
    note("error");
}

void ScorchLog::burnProgressDidChanagedLefttime(double fraction, std::uint64_t lefttime) {
    progress.emplace_back(fraction, lefttime);
}

void ScorchLog::burnProgressIsOpeningTrackOf(std::uint64_t track, std::uint64_t count) {
    note("open " + place(track, count));
}

void ScorchLog::burnProgressIsWriteingTrackOf(std::uint64_t track, std::uint64_t count) {
    note("write " + place(track, count));
}

void ScorchLog::burnProgressDidCloseTrackOf(std::uint64_t track, std::uint64_t count) {
    note("close " + place(track, count));
}
