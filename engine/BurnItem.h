// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <variant>

/// One entry of a burner's list: opaque to everybody but the burner that made it.
///
/// A reference stays valid after the entry has left the list; a burner ignores entries that are
/// not (or no longer) in its list.
class BurnItem {
public:
    BurnItem(const BurnItem &) = delete;
    BurnItem &operator=(const BurnItem &) = delete;

protected:
    BurnItem() = default;
    ~BurnItem() = default;
};

using BurnItemRef = std::shared_ptr<const BurnItem>;

/// Positions in a burner's root list, counted from 0, in ascending order.
using IndexSet = std::set<std::int64_t>;

/// What an item can be asked for. Each key's value type stands beside it.
inline constexpr std::string_view kScorchItemDisplayNameKey = "kScorchItemDisplayNameKey"; // text
inline constexpr std::string_view kScorchItemDurationKey = "kScorchItemDurationKey"; // CD frames
inline constexpr std::string_view kScorchItemFileSizeKey = "kScorchItemFileSizeKey"; // bytes

/// A text in UTF-8, or a count in the unit of its key.
using ItemValue = std::variant<std::string, std::int64_t>;

/// The properties of one item, by key; a key that does not apply to the item is missing.
using ItemProperties = std::map<std::string_view, ItemValue, std::less<>>;
