// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/system/recording/RecordingDiscs.h"

#include <filesystem>
#include <random>

namespace fs = std::filesystem;

using namespace recorder;

namespace {

constexpr std::size_t frameBytes = 2352;

} // namespace

RecordingDiscs::RecordingDiscs() : scene(folder.path()) {
    scene.control("");
    scene.startLog();
    scene.makeDisc(blankDisc(DiscKind::CdR));
}

std::string RecordingDiscs::samples(int frames, unsigned seed) {
    std::mt19937 random(seed);
    std::string bytes(static_cast<std::size_t>(frames) * frameBytes, '\0');
    for (char &byte : bytes) {
        byte = static_cast<char>(random() & 0xFFU);
    }
    return bytes;
}

std::string RecordingDiscs::song(const std::string &name, int frames, unsigned seed,
                                 const std::string &title, const std::string &artist) const {
    const std::string raw = file(name + ".raw", samples(frames, seed));
    const std::string song = path(name);
    const CommandResult made =
        runCommand({"flac", "--silent", "--force", "--force-raw-format", "--endian=little",
                    "--sign=signed", "--channels=2", "--bps=16", "--sample-rate=44100",
                    "--tag=TITLE=" + title, "--tag=ARTIST=" + artist, "-o", song, raw});
    EXPECT_EQ(made.exitCode, 0) << made.output;
    return song;
}

std::string RecordingDiscs::file(const std::string &name, const std::string &content) const {
    return folder.write(name, content).string();
}

std::string RecordingDiscs::sparseFile(const std::string &name, std::uintmax_t bytes) const {
    const std::string sparse = file(name, "");
    fs::resize_file(sparse, bytes);
    return sparse;
}

std::vector<std::string> RecordingDiscs::burning(const std::string &kind, const std::string &name,
                                                 const std::vector<std::string> &files) {
    std::vector<std::string> arguments = {"burn", "--" + kind, "--name", name, "--"};
    arguments.insert(arguments.end(), files.begin(), files.end());
    return arguments;
}

std::vector<std::string> RecordingDiscs::environment() const {
    return {"CD_RECORDER=" + folder.path().string(), "LD_PRELOAD=" RECORDER_LIBRARY,
            // The sanitizer's runtime is in the program, but not in front of the library.
            "ASAN_OPTIONS=verify_asan_link_order=0"};
}

int RecordingDiscs::burn(const std::vector<std::string> &arguments) {
    ScorchProcess scorch(arguments, environment());
    const int exitStatus = scorch.wait();
    output = scorch.output();
    errors = scorch.errors();
    return exitStatus;
}

void RecordingDiscs::mustBurn(const std::vector<std::string> &arguments) {
    EXPECT_EQ(burn(arguments), 0) << output << errors;
}

std::string RecordingDiscs::mustRun(const std::vector<std::string> &arguments) const {
    std::vector<std::string> command = {"env", "HOME=" + folder.path().string()};
    for (const std::string &variable : environment()) {
        command.push_back(variable);
    }
    command.insert(command.end(), arguments.begin(), arguments.end());
    const CommandResult result = runCommand(command);
    EXPECT_EQ(result.exitCode, 0) << arguments[0] << ":\n" << result.output;
    return result.output;
}

std::string RecordingDiscs::soundReadBack() const {
    mustRun({"cdparanoia", "-q", "-r", "-d", "/dev/sr0", "1-", path("read.raw")});
    return readFile(path("read.raw"));
}

void RecordingDiscs::expectDriveToBeFree() {
    const std::string log = scene.log();
    const std::size_t locked = log.rfind(" 1e 00 00 00 01 00"); // PREVENT ALLOW MEDIUM REMOVAL
    const std::size_t unlocked = log.rfind(" 1e 00 00 00 00 00");
    EXPECT_TRUE(locked == std::string::npos ||
                (unlocked != std::string::npos && locked < unlocked));
    expectNextDiscToWork();
}

void RecordingDiscs::expectNextDiscToWork() {
    scene.makeDisc(blankDisc(DiscKind::CdRw), "next");
    scene.control("disc next\n");
    mustBurn(burning("data", "Next", {file("next.txt", "next")}));
    EXPECT_TRUE(scene.disc("next").isFinal);
}
