// SPDX-License-Identifier: GPL-2.0-or-later
// Trees of files to images, side by side with cat, genisoimage and xorriso: interleaved in one run,
// from a warm page cache, each output flushed to the device. Prints medians.
//
//   bench_iso [FOLDER] [RUNS]     the trees are made in FOLDER (default: iso-bench) and kept there

#include "scorch/iso/IsoImage.h"
#include "scorch/iso/IsoTree.h"
#include "scorch/support/FileDescriptor.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <random>
#include <string>
#include <unistd.h>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;

double secondsOf(const std::function<void()> &work) {
    const auto start = Clock::now();
    work();
    return std::chrono::duration<double>(Clock::now() - start).count();
}

double median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

[[noreturn]] void fail(const std::string &what) {
    std::fprintf(stderr, "bench_iso: %s\n", what.c_str());
    std::exit(1);
}

/// `files` files in folders of 100, `bytes` in all, sizes spread evenly around the mean.
void makeTree(const std::filesystem::path &root, std::size_t files, std::size_t bytes) {
    if (std::filesystem::exists(root)) {
        return;
    }
    std::mt19937 random(1); // NOLINT: the same tree every time
    const std::size_t mean = bytes / files;
    std::uniform_int_distribution<std::size_t> sizes(mean / 2, mean + mean / 2);
    std::string content(2 * mean, '\0');
    std::generate(content.begin(), content.end(), [&] { return static_cast<char>(random()); });
    for (std::size_t number = 0; number < files; ++number) {
        const auto folder = root / ("folder " + std::to_string(number / 100));
        std::filesystem::create_directories(folder);
        std::ofstream file(folder / ("file " + std::to_string(number)), std::ios::binary);
        file.write(content.data(), static_cast<std::streamsize>(sizes(random)));
    }
}

void run(const std::string &command) {
    if (std::system(command.c_str()) != 0) { // NOLINT: a fixed command of this program
        fail("failed: " + command);
    }
}

void writeAll(int file, const std::vector<std::byte> &buffer, std::size_t count) {
    for (std::size_t done = 0; done < count;) {
        const ssize_t written = write(file, buffer.data() + done, count - done);
        if (written < 0) {
            fail("cannot write");
        }
        done += static_cast<std::size_t>(written);
    }
}

void ours(const std::filesystem::path &tree, const std::filesystem::path &image) {
    const auto scan = scorch::scanPath(tree, {}, {});
    if (!scan || !scan->node) {
        fail("cannot scan");
    }
    auto iso = scorch::IsoImage::create({{scan->node, scan->node->name}}, "Bench", {});
    if (!iso) {
        fail("cannot lay out");
    }
    const scorch::FileDescriptor file(
        open(image.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644));
    // As the drive of disc images writes: what is complete is sent to the device at once.
    std::vector<std::byte> buffer(std::size_t{1} << 18);
    constexpr off_t window = 8 << 20;
    off_t flushed = 0;
    off_t done = 0;
    const auto source = (*iso)->openSource();
    for (;;) {
        const auto count = source->read(buffer, {});
        if (!count) {
            fail("cannot read");
        }
        writeAll(file.get(), buffer, *count);
        done += static_cast<off_t>(*count);
        if (*count < buffer.size()) {
            break;
        }
        if (done - flushed >= window) {
            sync_file_range(file.get(), flushed, done - flushed, SYNC_FILE_RANGE_WRITE);
            flushed = done;
        }
    }
    fsync(file.get());
}

struct Contender {
    std::string name;
    std::function<void()> work;
    std::vector<double> seconds;
};

void compare(const std::string &title, const std::filesystem::path &tree, int runs) {
    const std::filesystem::path image = tree.parent_path() / "out.iso";
    const std::string in = "'" + tree.string() + "'";
    const std::string out = "'" + image.string() + "'";
    const std::string flush = " && sync " + out;
    std::vector<Contender> contenders{
        {"cat", [&] { run("find " + in + " -type f -print0 | xargs -0 cat >" + out + flush); }, {}},
        {"ours", [&] { ours(tree, image); }, {}},
        {"genisoimage",
         [&] { run("genisoimage -quiet -R -J -joliet-long -o " + out + " " + in + flush); },
         {}},
        {"xorriso",
         [&] {
             run("xorriso -as mkisofs -quiet -R -J -joliet-long -o " + out + " " + in +
                 " >/dev/null 2>&1" + flush);
         },
         {}}};
    for (int turn = 0; turn < runs; ++turn) {
        for (Contender &contender : contenders) {
            // Each once unmeasured, so that all find the sources cached and just such memory free
            // as they will ask for: in a virtual machine, the first use of a page that the machine
            // has given back costs more than all that is measured here.
            for (const bool measured : {false, true}) {
                std::filesystem::remove(image);
                run("sync");
                const double seconds = secondsOf(contender.work);
                if (measured) {
                    contender.seconds.push_back(seconds);
                }
            }
        }
    }
    std::filesystem::remove(image);
    const double limit = median(contenders[0].seconds);
    std::printf("%s, median of %d\n", title.c_str(), runs);
    for (const Contender &contender : contenders) {
        std::printf("  %-12s %6.2f s  %.2f x cat   (", contender.name.c_str(),
                    median(contender.seconds), median(contender.seconds) / limit);
        for (const double seconds : contender.seconds) {
            std::printf(" %.2f", seconds);
        }
        std::printf(" )\n");
    }
}

/// What no file is written for: adding, and the parts of a burn before its first sector.
void measureParts(const std::filesystem::path &tree, const std::filesystem::path &flat) {
    const auto report = [](const char *what, const std::function<void()> &work) {
        std::vector<double> seconds;
        for (int turn = 0; turn < 5; ++turn) {
            seconds.push_back(secondsOf(work));
        }
        std::printf("  %-52s %7.1f ms\n", what, 1000 * median(seconds));
    };
    std::printf("Parts, median of 5\n");
    report("count 10 000 files in one folder", [&] { scorch::countFiles(flat, {}); });
    report("scan 10 000 files in one folder", [&] { (void)scorch::scanPath(flat, {}, {}); });
    std::vector<std::filesystem::path> paths;
    for (const auto &entry : std::filesystem::directory_iterator(flat)) {
        paths.push_back(entry.path());
    }
    std::vector<scorch::IsoRootEntry> entries;
    report("scan 10 000 files one by one", [&] {
        entries.clear();
        for (const auto &path : paths) {
            const auto scan = scorch::scanPath(path, {}, {});
            entries.push_back({scan->node, scan->node->name});
        }
    });
    report("size of an image of 10 000 files side by side",
           [&] { (void)scorch::isoImageSize(entries, {}); });
    const auto node = scorch::scanPath(tree, {}, {})->node;
    report("size of an image of 10 000 files in 100 folders", [&] {
        (void)scorch::isoImageSize({{node, node->name}}, {});
    });
    report("create that image", [&] {
        (void)scorch::IsoImage::create({{node, node->name}}, "Bench", {});
    });
    auto image = scorch::IsoImage::create({{node, node->name}}, "Bench", {});
    report("stream it, 300 MB, to nowhere", [&] {
        std::vector<std::byte> buffer(std::size_t{1} << 18);
        const auto source = (*image)->openSource();
        for (auto count = source->read(buffer, {}); count && *count == buffer.size();
             count = source->read(buffer, {})) {
        }
    });
}

} // namespace

int main(int argc, char **argv) {
    const std::vector<std::string> arguments(argv, std::next(argv, argc));
    const std::filesystem::path folder =
        std::filesystem::absolute(arguments.size() > 1 ? arguments[1] : "iso-bench");
    const int runs = arguments.size() > 2 ? std::stoi(arguments[2]) : 5;
    makeTree(folder / "small", 10000, 300'000'000);
    makeTree(folder / "large", 300, 600'000'000);
    const auto flat = folder / "flat";
    if (!std::filesystem::exists(flat)) {
        std::filesystem::create_directories(flat);
        for (int number = 0; number < 10000; ++number) {
            std::ofstream(flat / ("file " + std::to_string(number))) << number;
        }
    }
    measureParts(folder / "small", flat);
    compare("10 000 files, 300 MB", folder / "small", runs);
    compare("300 files, 600 MB", folder / "large", runs);
}
