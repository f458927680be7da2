// SPDX-License-Identifier: GPL-2.0-or-later
// audio_bench probe|decode WORKERS FILES...
// Checks the files, or decodes all of them as a burn would, and prints the seconds that took on
// standard output. With "list", prints what a check finds in each.

#include "scorch/audio/AudioBackend.h"

#include <algorithm>
#include <atomic>
#include <charconv>
#include <chrono>
#include <cstdio>
#include <string_view>
#include <thread>
#include <vector>

namespace {

using scorch::AudioBackend;
using Clock = std::chrono::steady_clock;

std::vector<scorch::AudioProbe> probeAll(const AudioBackend &backend,
                                         const std::vector<std::filesystem::path> &files,
                                         unsigned workers) {
    std::vector<scorch::AudioProbe> probes(files.size());
    std::atomic<std::size_t> next = 0;
    std::vector<std::jthread> threads;
    for (unsigned i = 0; i < workers; ++i) {
        threads.emplace_back([&] {
            for (std::size_t index = next++; index < files.size(); index = next++) {
                probes[index] = backend.probe(files[index], {});
            }
        });
    }
    threads.clear(); // Joins.
    return probes;
}

bool decodeAll(const AudioBackend &backend, const std::vector<scorch::AudioTrackRequest> &tracks,
               unsigned workers) {
    const std::unique_ptr<scorch::AudioFeeder> feeder = backend.makeFeeder(tracks, workers);
    std::vector<std::byte> buffer(std::size_t{256} * 2352);
    for (std::size_t i = 0; i < tracks.size(); ++i) {
        const std::unique_ptr<scorch::SectorSource> source = feeder->openTrack(i);
        while (true) {
            const scorch::Outcome<std::size_t> got = source->read(buffer, {});
            if (!got) {
                const auto *error = std::get_if<ScorchError>(&got.error());
                std::fprintf(stderr, "%s\n",
                             error == nullptr ? "" : error->localizedDescription().c_str());
                return false;
            }
            if (*got == 0) {
                break;
            }
        }
    }
    return true;
}

int list(const std::vector<std::filesystem::path> &files,
         const std::vector<scorch::AudioProbe> &probes) {
    for (std::size_t i = 0; i < files.size(); ++i) {
        const std::string name = files[i].filename().string();
        if (const auto *info = std::get_if<scorch::AudioInfo>(&probes[i])) {
            std::printf("%s: %llu samples, \"%s\" by \"%s\"\n", name.c_str(),
                        static_cast<unsigned long long>(info->samples), info->title.c_str(),
                        info->artist.c_str());
        } else if (const auto *refusal = std::get_if<scorch::AudioRefusal>(&probes[i])) {
            std::printf("%s: %s%s\n", name.c_str(),
                        refusal->kind == scorch::RefusalKind::protectedFile ? "[protected] " : "",
                        refusal->reason.c_str());
        }
    }
    return 0;
}

int run(std::string_view mode, unsigned workers, const std::vector<std::filesystem::path> &files) {
    const scorch::Result<const AudioBackend *> backend = scorch::audioBackend();
    if (!backend) {
        std::fprintf(stderr, "%s\n", backend.error().detail().c_str());
        return 1;
    }
    Clock::time_point start = Clock::now();
    const std::vector<scorch::AudioProbe> probes = probeAll(**backend, files, workers);
    if (mode == "list") {
        return list(files, probes);
    }
    if (mode == "decode") {
        std::vector<scorch::AudioTrackRequest> tracks;
        for (std::size_t i = 0; i < files.size(); ++i) {
            if (const auto *info = std::get_if<scorch::AudioInfo>(&probes[i])) {
                tracks.push_back({files[i], info->samples});
            }
        }
        start = Clock::now();
        if (tracks.size() != files.size() || !decodeAll(**backend, tracks, workers)) {
            return 1;
        }
    }
    std::printf("%.4f\n", std::chrono::duration<double>(Clock::now() - start).count());
    return 0;
}

} // namespace

int main(int argc, char **argv) {
    unsigned workers = 0;
    if (argc < 4 ||
        std::from_chars(argv[2], argv[2] + std::string_view(argv[2]).size(), workers).ec !=
            std::errc() ||
        workers == 0) {
        std::fprintf(stderr, "usage: audio_bench list|probe|decode WORKERS FILES...\n");
        return 2;
    }
    return run(argv[1], workers, {argv + 3, argv + argc});
}
