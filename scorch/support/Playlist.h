// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/support/Result.h"

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace scorch {

/// The largest file that is read as a playlist: some 40 000 entries. What is larger is no playlist,
/// whatever its name says.
inline constexpr std::size_t maximumPlaylistBytes = std::size_t{4} << 20;

/// Whether the ending says playlist (.m3u, .m3u8, .pls, in any case). Any thread.
bool isPlaylistName(const std::filesystem::path &path);

/// The entries of a playlist, in their order, as the bytes that stand in it: file names, relative
/// or not, and addresses. Comments and titles are left out: a song's own tags know it better than a
/// list that another program once made. Reads M3U lines, or the FileN keys in the order of N if the
/// text has a [playlist] section. A byte order mark and line ends of any system are taken off.
std::vector<std::string> parsePlaylist(std::string_view text);

/// The text of a playlist file; an error if it cannot be read, is larger than maximumPlaylistBytes
/// or holds a NUL byte and so is no text. The error's text says why, for a person.
Result<std::string> readPlaylist(const std::filesystem::path &path);

/// Whether an entry is an address of something that is not a local file ("http://…").
bool isRemoteAddress(std::string_view entry);

/// What an entry can mean, most literal first; never empty. Relative names count from `folder`.
/// A file address is decoded. A name is tried as the bytes it has, then without blanks around it,
/// with the separators of other systems, converted between Latin-1 and UTF-8 (old lists are in
/// Latin-1, and a disc that was named in it may have a new list), and with its %XX decoded.
std::vector<std::filesystem::path> meaningsOfEntry(std::string_view entry,
                                                   const std::filesystem::path &folder);

} // namespace scorch
