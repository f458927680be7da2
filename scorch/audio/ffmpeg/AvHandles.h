// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

// FFmpeg's headers mix signedness and casts as C does; our warnings are for our code.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wconversion"
#pragma GCC diagnostic ignored "-Wsign-conversion"
#pragma GCC diagnostic ignored "-Wcast-qual"
#pragma GCC diagnostic ignored "-Wpedantic"
extern "C" {
#include <libavcodec/avcodec.h>
#include <libavcodec/vorbis_parser.h>
#include <libavformat/avformat.h>
#include <libavutil/channel_layout.h>
#include <libavutil/mathematics.h>
#include <libavutil/opt.h>
#include <libswresample/swresample.h>
}
#pragma GCC diagnostic pop

#include <memory>

namespace scorch {

/// Owners of the library's objects. Each is freed by the function that the library has for it.
struct AvDelete {
    void operator()(AVFormatContext *context) const { avformat_close_input(&context); }
    void operator()(AVCodecContext *context) const { avcodec_free_context(&context); }
    void operator()(AVPacket *packet) const { av_packet_free(&packet); }
    void operator()(AVFrame *frame) const { av_frame_free(&frame); }
    void operator()(AVVorbisParseContext *context) const { av_vorbis_parse_free(&context); }
    void operator()(SwrContext *context) const { swr_free(&context); }
    void operator()(AVIOContext *context) const {
        av_freep(&context->buffer);
        avio_context_free(&context);
    }
};

template <class T>
using AvHandle = std::unique_ptr<T, AvDelete>;

} // namespace scorch
