// SPDX-License-Identifier: GPL-2.0-or-later
// figures_bench FOLDER RUNS [ROW...]
// Burns and adds with the real program and the real engine, side by side with what else a user
// would take: interleaved in one run, on the same bytes, from a warm page cache, outputs flushed to
// the device. Prints one Markdown table of medians. FOLDER keeps the sources for the next time.
// Rows: small large songs mp3 folder drop; all without any.

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <random>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;

[[noreturn]] void fail(const std::string &what) {
    std::fprintf(stderr, "figures_bench: %s\n", what.c_str());
    std::exit(1);
}

void run(const std::string &command) {
    if (std::system(command.c_str()) != 0) { // NOLINT: a fixed command of this program
        fail("failed: " + command);
    }
}

std::string quoted(const fs::path &path) {
    return "'" + path.string() + "'"; // The folder's name is the caller's; it has no quotes.
}

double median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

std::string number(const char *format, double value) {
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), format, value); // NOLINT: formats of this file
    return text.data();
}

/// Files of noise in folders of `perFolder`, `bytes` in all, sizes spread evenly around the mean.
fs::path makeTree(const fs::path &root, std::size_t files, std::size_t bytes,
                  std::size_t perFolder) {
    if (fs::exists(root)) {
        return root;
    }
    const fs::path unfinished = root.string() + ".part";
    fs::remove_all(unfinished);
    std::mt19937 random(1); // NOLINT: the same tree every time
    const std::size_t mean = bytes / files;
    std::uniform_int_distribution<std::size_t> sizes(mean / 2, mean + mean / 2);
    std::string content(2 * mean + 1, '\0');
    std::generate(content.begin(), content.end(), [&] { return static_cast<char>(random()); });
    for (std::size_t i = 0; i < files; ++i) {
        const fs::path folder = unfinished / ("folder " + std::to_string(i / perFolder));
        fs::create_directories(folder);
        std::ofstream file(folder / ("file " + std::to_string(i)), std::ios::binary);
        file.write(content.data(), static_cast<std::streamsize>(sizes(random)));
    }
    fs::rename(unfinished, root);
    return root;
}

/// Twenty songs of 3.5 minutes in a format. Four are synthesised, the others are copies of them:
/// noise that swells, under chords, so that encoders spend the bits that music takes.
fs::path makeSongs(const fs::path &root, const std::string &ending, const std::string &options) {
    const fs::path folder = root / ("songs " + ending);
    if (fs::exists(folder)) {
        return folder;
    }
    const fs::path unfinished = folder.string() + ".part";
    fs::remove_all(unfinished);
    fs::create_directories(unfinished);
    for (int i = 0; i < 20; ++i) {
        const fs::path song = unfinished / (std::to_string(i + 1) + '.' + ending.substr(0, 4));
        if (i >= 4) {
            const fs::path model =
                unfinished / (std::to_string(i % 4 + 1) + '.' + ending.substr(0, 4));
            fs::copy_file(model, song);
            continue;
        }
        const std::string seed = std::to_string(i + 1);
        const std::string tone = std::to_string(180 + 40 * i);
        run("ffmpeg -nostdin -loglevel error -y"
            " -f lavfi -i anoisesrc=c=pink:r=48000:a=0.25:d=210:s=" +
            seed + " -f lavfi -i anoisesrc=c=brown:r=48000:a=0.3:d=210:s=7" + seed +
            " -f lavfi -i sine=f=" + tone +
            ":r=48000:d=210:b=4"
            " -filter_complex '[0][2]amix=2:normalize=0,tremolo=f=2.1:d=0.8[l];"
            "[1][2]amix=2:normalize=0,tremolo=f=0.7:d=0.6[r];[l][r]amerge'"
            " -metadata artist=Bench -metadata title=Song" +
            seed + ' ' + options + ' ' + quoted(song));
    }
    fs::rename(unfinished, folder);
    return folder;
}

struct Contender {
    std::string name;
    std::string command;
    std::vector<double> seconds;
};

class Table {
public:
    Table(fs::path root, int runs) : root_(std::move(root)), runs_(runs) {
        std::printf("| work | who | seconds | against the first |\n|---|---|---:|---:|\n");
    }

    fs::path output() const { return root_ / "out"; }

    /// Each contender writes into an empty folder output(), and what it wrote is flushed. Each runs
    /// once unmeasured before each measured time, so that all find the sources cached and as much
    /// memory free as they will ask for.
    void compare(const std::string &work, std::vector<Contender> contenders) const {
        for (int turn = 0; turn < runs_; ++turn) {
            for (Contender &contender : contenders) {
                for (const bool measured : {false, true}) {
                    fs::remove_all(output());
                    fs::create_directories(output());
                    run("sync -f " + quoted(root_));
                    const Clock::time_point start = Clock::now();
                    run(contender.command + " && find " + quoted(output()) +
                        " -type f -exec sync {} +");
                    if (measured) {
                        contender.seconds.push_back(
                            std::chrono::duration<double>(Clock::now() - start).count());
                    }
                }
            }
        }
        fs::remove_all(output());
        const double first = median(contenders.front().seconds);
        for (const Contender &contender : contenders) {
            const double seconds = median(contender.seconds);
            row(work, contender.name, number("%.2f", seconds), number("%.2f", seconds / first));
        }
    }

    /// The engine's own time for adding files, and its longest task on the main thread.
    void adding(const std::string &work, const std::string &arguments) const {
        std::vector<double> first;
        std::vector<double> second;
        std::vector<double> longest;
        std::vector<double> longestAlone;
        for (int turn = 0; turn < runs_; ++turn) {
            const fs::path result = root_ / "adding.txt";
            run(quoted(ADDING_PROGRAM) + ' ' + arguments + " > " + quoted(result));
            std::ifstream numbers(result);
            double values[4] = {};
            numbers >> values[0] >> values[1] >> values[2] >> values[3];
            if (!numbers || values[1] < 0) {
                fail("no figures for " + work);
            }
            first.push_back(values[0]);
            second.push_back(values[1]);
            longest.push_back(values[2]);
            longestAlone.push_back(values[3]);
        }
        row(work, "engine, first time", number("%.3f", median(first)), "");
        row(work, "engine, again", number("%.3f", median(second)), "");
        row(work, "longest task on the main thread", number("%.4f", median(longest) / 1000), "");
        row(work, "its processor time", number("%.4f", median(longestAlone) / 1000), "");
    }

private:
    static void row(const std::string &work, const std::string &who, const std::string &seconds,
                    const std::string &against) {
        std::printf("| %s | %s | %s | %s |\n", work.c_str(), who.c_str(), seconds.c_str(),
                    against.c_str());
        std::fflush(stdout);
    }

    fs::path root_;
    int runs_;
};

std::string scorch(const Table &table, const std::string &options, const std::string &files) {
    return quoted(SCORCH_PROGRAM) + " burn --image-drive " + quoted(table.output()) + ' ' +
           options + ' ' + files + " > /dev/null";
}

void trees(const Table &table, const std::string &work, const fs::path &tree) {
    const std::string in = quoted(tree);
    const std::string out = quoted(table.output() / "image");
    table.compare(
        work, {{"cat into one file", "find " + in + " -type f -print0 | xargs -0 cat > " + out, {}},
               {"scorch", scorch(table, "--data --no-verify", in), {}},
               {"scorch, verified", scorch(table, "--data", in), {}},
               {"genisoimage", "genisoimage -quiet -R -J -joliet-long -o " + out + ' ' + in, {}},
               {"xorriso",
                "xorriso -as mkisofs -quiet -R -J -joliet-long -o " + out + ' ' + in +
                    " > /dev/null 2>&1",
                {}}});
}

void songs(const Table &table, const fs::path &root) {
    const std::vector<std::array<std::string, 3>> formats = {
        {"FLAC", "flac", "-ar 44100 -sample_fmt s16 -c:a flac"},
        {"MP3", "mp3", "-ar 44100 -c:a libmp3lame -q:a 2"},
        {"Ogg", "ogg", "-ar 44100 -c:a libvorbis -q:a 5"},
        {"Opus", "opus", "-c:a libopus -b:a 128k"},
        {"M4A", "m4a", "-ar 44100 -c:a aac -b:a 160k"},
        {"48 kHz 24-bit FLAC", "flac 48k24", "-c:a flac -sample_fmt s32 -bits_per_raw_sample 24"},
    };
    for (const auto &[name, ending, options] : formats) {
        const fs::path folder = makeSongs(root, ending, options);
        const std::string decode =
            "find " + quoted(folder) +
            " -type f -print0 | sort -zV | xargs -0 -P 2 -I{} sh -c "
            "'ffmpeg -nostdin -loglevel error -y -i \"$1\" -f s16le -ac 2 -ar 44100 "
            "\"$2/$(basename \"$1\").raw\"' sh {} " +
            quoted(table.output());
        table.compare("20 songs, " + name,
                      {{"ffmpeg, two at once", decode, {}},
                       {"scorch", scorch(table, "--audio --no-verify", quoted(folder)), {}}});
    }
}

bool wanted(const std::vector<std::string> &rows, const std::string &row) {
    return rows.empty() || std::find(rows.begin(), rows.end(), row) != rows.end();
}

} // namespace

int main(int argumentCount, char **arguments) {
    const std::vector<std::string> words(arguments + 1, arguments + argumentCount);
    if (words.size() < 2 || std::atoi(words[1].c_str()) < 1) { // NOLINT: 0 for what is no number
        std::fprintf(stderr, "usage: figures_bench FOLDER RUNS [ROW...]\n");
        return 2;
    }
    const fs::path root = fs::absolute(words[0]);
    fs::create_directories(root);
    const Table table(root, std::atoi(words[1].c_str())); // NOLINT: looked at above
    const std::vector<std::string> rows(words.begin() + 2, words.end());
    if (wanted(rows, "small")) {
        trees(table, "10 000 files, 300 MB, to .iso",
              makeTree(root / "small", 10'000, 300'000'000, 100));
    }
    if (wanted(rows, "large")) {
        trees(table, "300 files, 600 MB, to .iso", makeTree(root / "large", 300, 600'000'000, 100));
    }
    if (wanted(rows, "songs")) {
        songs(table, root);
    }
    if (wanted(rows, "mp3")) {
        const fs::path folder = makeSongs(root, "mp3", "-ar 44100 -c:a libmp3lame -q:a 2");
        table.adding("adding 20 tagged MP3s", "audio " + quoted(folder) + "/*");
    }
    const fs::path flat = makeTree(root / "flat", 10'000, 40'000'000, 10'000);
    if (wanted(rows, "folder")) {
        table.adding("adding a folder of 10 000 files", "data " + quoted(flat));
    }
    if (wanted(rows, "drop")) {
        table.adding("adding 10 000 files in one drop", "data " + quoted(flat) + "/*/*");
    }
    return 0;
}
