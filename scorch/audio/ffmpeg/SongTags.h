// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/audio/AudioBackend.h"

namespace scorch {

class MediaFile;

/// Artist, title and album as the file's tags have them, in valid UTF-8; the length is left zero.
AudioInfo readTags(MediaFile &file);

} // namespace scorch
