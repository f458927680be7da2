// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/support/Playlist.h"

#include "scorch/support/FileDescriptor.h"
#include "scorch/support/Text.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <fcntl.h>
#include <map>
#include <optional>
#include <system_error>
#include <unistd.h>

namespace scorch {
namespace {

constexpr std::string_view blanks = " \t";

char lowered(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool startsWithoutCase(std::string_view text, std::string_view lowerCasePrefix) {
    return text.size() >= lowerCasePrefix.size() &&
           std::equal(lowerCasePrefix.begin(), lowerCasePrefix.end(), text.begin(),
                      [](char wanted, char c) { return wanted == lowered(c); });
}

std::string_view trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

/// Lines end with LF, CR LF or, in lists from old Macs, CR alone.
std::vector<std::string_view> linesOf(std::string_view text) {
    std::vector<std::string_view> lines;
    while (!text.empty()) {
        const std::size_t end = text.find_first_of("\r\n");
        lines.push_back(text.substr(0, end));
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    }
    return lines;
}

/// The entry of a "FileN=entry" line, filed under N.
void takePlsLine(std::string_view line, std::map<std::uint64_t, std::string> &entries) {
    line = trimmed(line);
    if (!startsWithoutCase(line, "file")) {
        return;
    }
    const std::size_t equals = line.find('=');
    if (equals == std::string_view::npos) {
        return;
    }
    const std::string_view digits = trimmed(line.substr(4, equals - 4));
    std::uint64_t number = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    const std::string_view entry = trimmed(line.substr(equals + 1));
    if (error == std::errc() && end == digits.data() + digits.size() && !entry.empty()) {
        entries.emplace(number, entry);
    }
}

int hexValue(char c) {
    if (c >= '0' && c <= '9') {
        return c - '0';
    }
    const char lower = lowered(c);
    return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

std::string percentDecoded(std::string_view text) {
    std::string decoded;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const int high = text[i] == '%' && i + 2 < text.size() ? hexValue(text[i + 1]) : -1;
        const int low = high >= 0 ? hexValue(text[i + 2]) : -1;
        if (low < 0) {
            decoded += text[i];
            continue;
        }
        decoded += static_cast<char>(high * 16 + low);
        i += 2;
    }
    return decoded;
}

std::string latin1ToUtf8(std::string_view text) {
    std::string utf8;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte < 0x80) {
            utf8 += c;
        } else {
            utf8 += static_cast<char>(0xC0 | (byte >> 6));
            utf8 += static_cast<char>(0x80 | (byte & 0x3F));
        }
    }
    return utf8;
}

/// Nothing if the text is not UTF-8 of characters that Latin-1 has.
std::optional<std::string> utf8ToLatin1(std::string_view text) {
    std::string latin1;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        if (byte < 0x80) {
            latin1 += text[i];
            continue;
        }
        const bool twoBytes = (byte == 0xC2 || byte == 0xC3) && i + 1 < text.size();
        const auto next = twoBytes ? static_cast<unsigned char>(text[i + 1]) : 0U;
        if ((next & 0xC0U) != 0x80U) {
            return std::nullopt;
        }
        latin1 += static_cast<char>(((byte & 0x03U) << 6U) | (next & 0x3FU));
        ++i;
    }
    return latin1;
}

/// The path of "file:///path", "file://localhost/path" and "file:/path"; nothing for what is no
/// file address.
std::optional<std::string> pathOfFileAddress(std::string_view entry) {
    static constexpr std::string_view scheme = "file:";
    if (!startsWithoutCase(entry, scheme)) {
        return std::nullopt;
    }
    entry.remove_prefix(scheme.size());
    if (entry.substr(0, 2) == "//") {
        entry.remove_prefix(2);
        if (startsWithoutCase(entry, "localhost/")) {
            entry.remove_prefix(std::string_view("localhost").size());
        }
    }
    if (entry.empty() || entry.front() != '/') {
        return std::nullopt;
    }
    return percentDecoded(entry);
}

ScorchError unreadable(int error) {
    const std::string detail = std::generic_category().message(error);
    return {ScorchErrorCode::sourceUnreadable,
            localized("The playlist cannot be read (%@).", {detail}), detail};
}

} // namespace

bool isPlaylistName(const std::filesystem::path &path) {
    std::string ending = path.extension().native();
    std::transform(ending.begin(), ending.end(), ending.begin(), lowered);
    return ending == ".m3u" || ending == ".m3u8" || ending == ".pls";
}

std::vector<std::string> parsePlaylist(std::string_view text) {
    static constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    if (text.substr(0, byteOrderMark.size()) == byteOrderMark) {
        text.remove_prefix(byteOrderMark.size());
    }
    const std::vector<std::string_view> lines = linesOf(text);
    const auto isText = [](std::string_view line) {
        return !trimmed(line).empty();
    };
    const auto first = std::find_if(lines.begin(), lines.end(), isText);
    std::vector<std::string> entries;
    if (first != lines.end() && startsWithoutCase(trimmed(*first), "[playlist]")) {
        std::map<std::uint64_t, std::string> numbered;
        for (const std::string_view line : lines) {
            takePlsLine(line, numbered);
        }
        for (auto &[number, entry] : numbered) {
            entries.push_back(std::move(entry));
        }
        return entries;
    }
    for (const std::string_view line : lines) {
        if (isText(line) && trimmed(line).front() != '#') {
            entries.emplace_back(line);
        }
    }
    return entries;
}

Result<std::string> readPlaylist(const std::filesystem::path &path) {
    const FileDescriptor file(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
    if (!file.valid()) {
        return unreadable(errno);
    }
    std::string text;
    std::array<char, 65536> buffer{};
    for (;;) {
        const ssize_t count = read(file.get(), buffer.data(), buffer.size());
        if (count < 0 && errno == EINTR) {
            continue;
        }
        if (count < 0) {
            return unreadable(errno);
        }
        if (count == 0) {
            return text;
        }
        const std::string_view piece(buffer.data(), static_cast<std::size_t>(count));
        if (text.size() + piece.size() > maximumPlaylistBytes ||
            piece.find('\0') != std::string_view::npos) {
            return ScorchError(ScorchErrorCode::sourceUnreadable,
                               localized("The file is named like a playlist but is none."));
        }
        text += piece;
    }
}

bool isRemoteAddress(std::string_view entry) {
    entry = trimmed(entry);
    const std::size_t end = entry.find("://");
    if (end == std::string_view::npos || end < 2 || pathOfFileAddress(entry)) {
        return false;
    }
    const std::string_view scheme = entry.substr(0, end);
    return std::all_of(scheme.begin(), scheme.end(), [](char c) {
        const char lower = lowered(c);
        return (lower >= 'a' && lower <= 'z') || (lower >= '0' && lower <= '9') || c == '+' ||
               c == '-' || c == '.';
    });
}

std::vector<std::filesystem::path> meaningsOfEntry(std::string_view entry,
                                                   const std::filesystem::path &folder) {
    std::vector<std::string> names = {std::string(entry)};
    const auto add = [&names](std::string name) {
        if (std::find(names.begin(), names.end(), name) == names.end()) {
            names.push_back(std::move(name));
        }
    };
    const std::string_view plain = trimmed(entry);
    if (std::optional<std::string> path = pathOfFileAddress(plain)) {
        names = {*path};
    } else {
        add(std::string(plain));
        std::string converted(plain);
        std::replace(converted.begin(), converted.end(), '\\', '/');
        add(converted);
        add(percentDecoded(plain));
    }
    for (const std::string &name : std::vector<std::string>(names)) {
        add(latin1ToUtf8(name));
        if (std::optional<std::string> latin1 = utf8ToLatin1(name)) {
            add(*latin1);
        }
    }
    std::vector<std::filesystem::path> meanings;
    meanings.reserve(names.size());
    for (const std::string &name : names) {
        meanings.push_back(folder / name);
    }
    return meanings;
}

} // namespace scorch
