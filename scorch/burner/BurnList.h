// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/BurnItem.h"
#include "scorch/burner/Item.h"

#include <cstdint>
#include <vector>

namespace scorch {

/// The items of a burner in their order. No operation costs more than the length of the list, and
/// asking for an item by its position costs nothing. One thread.
class BurnList {
public:
    std::int64_t count() const { return static_cast<std::int64_t>(items_.size()); }
    const std::vector<ItemRef> &items() const { return items_; }

    /// Null outside the list.
    ItemRef at(std::int64_t index) const;

    void append(ItemRef item) { items_.push_back(std::move(item)); }

    /// Takes the items that are in the list out of it and returns them, in the list's order.
    std::vector<ItemRef> remove(const std::vector<BurnItemRef> &items);

    /// Takes all out and returns them.
    std::vector<ItemRef> clear();

    /// Moves the items at `rows` together, as Scorcher::moveBurnItemTo says.
    void move(const IndexSet &rows, std::int64_t destination);

private:
    std::vector<ItemRef> items_;
};

} // namespace scorch
