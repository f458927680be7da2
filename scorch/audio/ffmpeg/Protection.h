// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/audio/ffmpeg/FileInput.h"

namespace scorch {

/// How the sound of a file is locked away from everybody but one player.
enum class Protection { none, mp4Encryption, asfEncryption, audible };

/// Looks for the marks that encrypted files carry: the sample entries 'enca', 'drms' and the like
/// in ISO base media files (ISO/IEC 14496-12), the encryption objects in the header of ASF files,
/// and the signatures of both kinds of Audible books. Reads a few kilobytes at most, because an
/// encrypted file is otherwise taken for a damaged one, or worse, played as noise.
Protection findProtection(FileInput &input);

} // namespace scorch
