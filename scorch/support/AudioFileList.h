// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/AddFilesResult.h"
#include "engine/BurnFile.h"

#include <stop_token>
#include <vector>

namespace scorch {

/// What a drop on the audio list stands for: one entry a file, nothing but regular files. Whether a
/// file is sound is for the decoder to say.
struct AudioFileList {
    std::vector<BurnFile> files;      ///< In the order in which they will play.
    std::vector<RefusedFile> refused; ///< Named by the client or by a playlist, but not to be had.
};

/// Replaces folders and playlists by the files in them. Blocks on the file system; any thread.
/// Nothing is opened but folders and playlists. After a stop request it returns early with what it
/// has.
///
/// Folders are walked to the bottom in the natural order of names, files and folders in one order,
/// as a player that sorts by path has it: "CD 1", "CD 2" and "Encore.flac" stay in sequence. Hidden
/// files and folders are skipped, and so are playlists: they name songs that are in the folder
/// anyway. Symbolic links are followed, but no folder is entered twice, so that a loop ends and
/// repeats nothing.
///
/// A playlist (.m3u, .m3u8, .pls) is replaced by its entries, which may be folders and playlists
/// themselves; a list that names itself, directly or through others, is taken once. Entries that do
/// not exist or that lie on a network address are refused by name, as is what the client names and
/// is missing, empty of songs, or neither file nor folder (opening a pipe would block for ever).
AudioFileList expandAudioFiles(const std::vector<BurnFile> &files, const std::stop_token &stop);

} // namespace scorch
