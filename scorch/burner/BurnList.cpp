// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/burner/BurnList.h"

#include <algorithm>
#include <cstddef>
#include <unordered_set>
#include <utility>

namespace scorch {

ItemRef BurnList::at(std::int64_t index) const {
    return index >= 0 && index < count() ? items_[static_cast<std::size_t>(index)] : nullptr;
}

std::vector<ItemRef> BurnList::remove(const std::vector<BurnItemRef> &items) {
    std::unordered_set<const BurnItem *> wanted;
    wanted.reserve(items.size());
    for (const BurnItemRef &item : items) {
        wanted.insert(item.get());
    }
    const auto gone =
        std::stable_partition(items_.begin(), items_.end(), [&wanted](const ItemRef &item) {
            return !wanted.contains(item.get());
        });
    std::vector<ItemRef> removed(std::make_move_iterator(gone),
                                 std::make_move_iterator(items_.end()));
    items_.erase(gone, items_.end());
    return removed;
}

std::vector<ItemRef> BurnList::clear() {
    return std::exchange(items_, {});
}

void BurnList::move(const IndexSet &rows, std::int64_t destination) {
    std::vector<ItemRef> moved;
    std::vector<ItemRef> rest;
    rest.reserve(items_.size());
    std::int64_t largest = -1;
    for (std::int64_t index = 0; index < count(); ++index) {
        const bool moves = rows.contains(index);
        (moves ? moved : rest).push_back(items_[static_cast<std::size_t>(index)]);
        largest = moves ? index : largest;
    }
    const auto length = static_cast<std::int64_t>(moved.size());
    const std::int64_t wanted = largest > destination ? destination : destination - length;
    const std::int64_t start = std::clamp<std::int64_t>(wanted, 0, count() - length);
    rest.insert(rest.begin() + start, std::make_move_iterator(moved.begin()),
                std::make_move_iterator(moved.end()));
    items_ = std::move(rest);
}

} // namespace scorch
