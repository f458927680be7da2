// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/burner/UniqueNames.h"

#include "scorch/support/Utf8.h"

#include <string_view>
#include <utility>

namespace scorch {
namespace {

/// What Rock Ridge and every Linux file system take.
constexpr std::size_t maximumNameBytes = 255;

/// A name in front of its number and what stands behind it.
std::pair<std::string_view, std::string_view> splitName(std::string_view name, bool isFolder) {
    const std::size_t dot = isFolder ? std::string_view::npos : name.rfind('.');
    if (dot == std::string_view::npos || name.find_first_not_of('.') > dot ||
        dot + 1 == name.size()) {
        return {name, {}};
    }
    return {name.substr(0, dot), name.substr(dot)};
}

std::string numberedName(const std::string &name, bool isFolder, std::size_t number) {
    const auto [stem, ending] = splitName(name, isFolder);
    const std::string tail = " (" + std::to_string(number) + ')';
    const std::size_t behind = tail.size() + ending.size();
    const std::size_t room = behind < maximumNameBytes ? maximumNameBytes - behind : 0;
    return std::string(cutAtCharacter(stem, room)) + tail + std::string(ending);
}

} // namespace

std::string UniqueNames::claim(const std::string &name, bool isFolder) {
    if (taken_.insert(name).second) {
        return name;
    }
    for (std::size_t &number = nextNumber_.try_emplace(name, 2).first->second;; ++number) {
        std::string numbered = numberedName(name, isFolder, number);
        if (taken_.insert(numbered).second) {
            ++number;
            return numbered;
        }
    }
}

void UniqueNames::release(const std::string &name) {
    taken_.erase(name);
    nextNumber_.clear();
}

void UniqueNames::clear() {
    taken_.clear();
    nextNumber_.clear();
}

} // namespace scorch
