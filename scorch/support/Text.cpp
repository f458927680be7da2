// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/support/Text.h"

#include "engine/ScorchHooks.h"

namespace scorch {

std::string localized(std::string_view key, const std::vector<std::string> &values) {
    static constexpr std::string_view placeholder = "%@";
    const auto &lookUp = ScorchHooks::shared().localizedText;
    const std::string format = lookUp ? lookUp(key) : std::string(key);
    std::string text;
    std::size_t from = 0;
    for (const std::string &value : values) {
        const std::size_t at = format.find(placeholder, from);
        if (at == std::string::npos) {
            break;
        }
        text.append(format, from, at - from).append(value);
        from = at + placeholder.size();
    }
    return text.append(format, from);
}

} // namespace scorch
