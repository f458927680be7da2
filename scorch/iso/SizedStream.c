/* SPDX-License-Identifier: GPL-2.0-or-later */
/* In C because the interface has a member called `class`. */
#include "scorch/iso/SizedStream.h"

#include <stdint.h>
#include <stdlib.h>
#include <sys/types.h>

#include <libisofs.h>

struct SizedStream {
    ino_t identity;
    off_t size;
};

static const struct SizedStream *sizedStream(const IsoStream *stream) {
    return stream->data;
}

/* The writer of libisofs comes here only behind the directories, where nobody listens to it. */
static int refuseOpen(IsoStream *stream) {
    (void)stream;
    return (int)ISO_FILE_ACCESS_DENIED;
}

static int close_(IsoStream *stream) {
    (void)stream;
    return ISO_SUCCESS;
}

static off_t getSize(IsoStream *stream) {
    return sizedStream(stream)->size;
}

static int refuseRead(IsoStream *stream, void *buffer, size_t count) {
    (void)stream;
    (void)buffer;
    (void)count;
    return (int)ISO_FILE_NOT_OPENED;
}

static int isRepeatable(IsoStream *stream) {
    (void)stream;
    return 1;
}

static void getId(IsoStream *stream, unsigned int *fileSystem, dev_t *device, ino_t *inode) {
    /* libisofs numbers its own file systems from 1 and leaves those above to its users. */
    *fileSystem = 0x5343;
    *device = 0;
    *inode = sizedStream(stream)->identity;
}

static void freeData(IsoStream *stream) {
    free(stream->data);
}

static int updateSize(IsoStream *stream) {
    (void)stream;
    return ISO_SUCCESS;
}

static IsoStream *getInputStream(IsoStream *stream, int flag) {
    (void)stream;
    (void)flag;
    return NULL;
}

static int compareIdentity(IsoStream *a, IsoStream *b) {
    const ino_t left = sizedStream(a)->identity;
    const ino_t right = sizedStream(b)->identity;
    return left < right ? -1 : left > right;
}

static IsoStreamIface sizedStreamClass = {
    .version = 3,
    .type = {'u', 's', 'e', 'r'},
    .open = refuseOpen,
    .close = close_,
    .get_size = getSize,
    .read = refuseRead,
    .is_repeatable = isRepeatable,
    .get_id = getId,
    .free = freeData,
    .update_size = updateSize,
    .get_input_stream = getInputStream,
    .cmp_ino = compareIdentity,
};

IsoStream *sizedStreamNew(uint64_t identity, uint64_t size) {
    IsoStream *const stream = malloc(sizeof *stream);
    struct SizedStream *const data = malloc(sizeof *data);
    if (stream == NULL || data == NULL) {
        free(stream);
        free(data);
        return NULL;
    }
    data->identity = (ino_t)identity;
    data->size = (off_t)size;
    stream->class = &sizedStreamClass;
    stream->refcount = 1;
    stream->data = data;
    return stream;
}
