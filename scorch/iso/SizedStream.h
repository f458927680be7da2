/* SPDX-License-Identifier: GPL-2.0-or-later */
#pragma once

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

struct iso_stream;

/**
 * A libisofs stream that says how large a file is and never gives its bytes: libisofs lays the
 * image out and writes the directories, the contents are read past it. Streams of the same
 * `identity` stand for the same file. The caller owns one reference; null if memory is short.
 */
struct iso_stream *sizedStreamNew(uint64_t identity, uint64_t size);

#ifdef __cplusplus
}
#endif
