// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace cli {

/// Builds one JSON object, member by member, in one line. The result is the same in every locale,
/// and valid whatever bytes a text has.
class JsonObject {
public:
    /// Starts with a member "event".
    explicit JsonObject(std::string_view event);

    JsonObject &add(std::string_view key, std::string_view text);
    JsonObject &add(std::string_view key, const char *text) {
        return add(key, std::string_view(text));
    }
    JsonObject &add(std::string_view key, std::int64_t number);
    JsonObject &add(std::string_view key, std::uint64_t number);
    JsonObject &add(std::string_view key, bool value);
    JsonObject &add(std::string_view key, const std::vector<int> &numbers);
    /// Rounded to four places; what is not finite is 0.
    JsonObject &addFraction(std::string_view key, double value);
    /// "path", and "pathPercentEncoded" beside it if the bytes are not UTF-8.
    JsonObject &addPath(std::string_view bytes);

    /// The object with a line end behind it.
    std::string line() const { return text_ + "}\n"; }

private:
    JsonObject &addRaw(std::string_view key, std::string_view value);

    std::string text_ = "{";
};

} // namespace cli
