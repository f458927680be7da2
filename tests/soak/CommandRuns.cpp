// SPDX-License-Identifier: GPL-2.0-or-later
// The real `scorch` on the emulated recorder, again and again, each time with something random:
//
//   soak_command COUNT SEED
//
// CD_RECORDER names the recorder's folder. A program that has a data race ends with a status of its
// own (ThreadSanitizer: 66), which is none of those that scorch has.
#include "tests/soak/RandomFault.h"
#include "tests/soak/SoakScene.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/system/ScorchProcess.h"

#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <thread>
#include <vector>

namespace {

constexpr int done = 0;
constexpr int failed = 1;
constexpr int cancelled = 130;

std::vector<std::string> arguments(const SoakScene &scene, bool isData) {
    std::vector<std::string> all{"burn", isData ? "--data" : "--audio", "--name", "Soak", "--"};
    for (const std::filesystem::path &file : isData ? scene.files() : scene.songs()) {
        all.push_back(file.string());
    }
    return all;
}

bool runOne(SoakScene &scene, int number, std::mt19937 &random) {
    scene.clearFaults();
    scene.insertBlank(pick(random, 1) == 0 ? recorder::DiscKind::CdR : recorder::DiscKind::CdRw);
    scene.setSpeed(pick(random, 1) == 0 ? 0 : 600 + pick(random, 4000));
    const bool isData = pick(random, 1) == 1;
    const int what = pick(random, 2); // Nothing, a cancel, a fault.
    const std::string fault = randomFault(random);
    const std::chrono::milliseconds when(pick(random, 4000));

    ScorchProcess scorch(arguments(scene, isData),
                         {"LD_PRELOAD=" CD_RECORDER_LIBRARY, "LC_ALL=C.UTF-8"});
    if (what != 0) {
        // When it happens is what is random about it; nothing waits for anything here.
        std::this_thread::sleep_for(when);
    }
    if (what == 1) {
        scorch.sendSignal(SIGINT);
    } else if (what == 2) {
        scene.setFaults(fault + "\n");
    }
    const int status = scorch.wait(std::chrono::minutes(5));
    const bool isKnown =
        status == done || (what == 1 && status == cancelled) || (what != 0 && status == failed);
    // A program that has ended cannot tell a drive that was silent to the end to open its door.
    const bool isSilent = what == 2 && fault.substr(0, 6) == "silent";
    const bool isGood = isKnown && (isSilent || !scene.isDoorLocked());
    std::printf("%d: %s, %s at %d ms: status %d%s\n", number, isData ? "data" : "audio",
                what == 0   ? "-"
                : what == 1 ? "cancel"
                            : fault.c_str(),
                static_cast<int>(when.count()), status, isGood ? "" : " BAD");
    if (!isGood) {
        std::printf("%s%s", scorch.output().c_str(), scorch.errors().c_str());
    } else if (status == failed) {
        std::printf("    %s", scorch.errors().substr(0, scorch.errors().find('\n') + 1).c_str());
    }
    std::fflush(stdout);
    return isGood;
}

} // namespace

int main(int argc, char *argv[]) {
    const char *const root = std::getenv("CD_RECORDER");
    if (root == nullptr || argc != 3) {
        std::fprintf(stderr, "CD_RECORDER=FOLDER soak_command COUNT SEED\n");
        return 2;
    }
    const TemporaryFolder folder;
    SoakScene scene(root, folder.path());
    std::mt19937 random(static_cast<std::uint32_t>(std::stoul(argv[2])));
    int bad = 0;
    for (int number = 1; number <= std::stoi(argv[1]); ++number) {
        bad += runOne(scene, number, random) ? 0 : 1;
    }
    std::printf("%d not as it has to be\n", bad);
    return bad == 0 ? 0 : 1;
}
