// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/recorder/tests/Programs.h"

#include "tests/recorder/tests/Host.h"

#include <sys/resource.h>

using namespace recorder;

namespace {

void putLittle(std::string &text, std::uint32_t value, int count) {
    for (int index = 0; index < count; ++index) {
        text += static_cast<char>(value >> (8U * static_cast<unsigned>(index)) & 0xffU);
    }
}

std::string wavHeader(std::uint32_t bytes) {
    std::string text = "RIFF";
    putLittle(text, bytes + 36, 4);
    text += "WAVEfmt ";
    putLittle(text, 16, 4);
    putLittle(text, 1, 2);
    putLittle(text, 2, 2);
    putLittle(text, 44100, 4);
    putLittle(text, 176400, 4);
    putLittle(text, 4, 2);
    putLittle(text, 16, 2);
    text += "data";
    putLittle(text, bytes, 4);
    return text;
}

} // namespace

Programs::Programs() {
    // A user may lock some memory, and wodim then wants to lock more than that. Where nothing may
    // be locked it does without.
    const rlimit nothing{};
    setrlimit(RLIMIT_MEMLOCK, &nothing);
    insertBlank(DiscKind::CdR);
}

CommandResult Programs::run(const std::vector<std::string> &arguments) const {
    std::vector<std::string> command = {"env", "HOME=" + folder.path().string(),
                                        "CD_RECORDER=" + folder.path().string(),
                                        "LD_PRELOAD=" RECORDER_LIBRARY};
    command.insert(command.end(), arguments.begin(), arguments.end());
    return runCommand(command);
}

std::string Programs::mustRun(const std::vector<std::string> &arguments) const {
    const CommandResult result = run(arguments);
    EXPECT_EQ(result.exitCode, 0) << arguments[0] << ":\n" << result.output;
    return result.output;
}

Bytes Programs::sound(int frames, int seed) {
    return pattern(kRawSectorBytes, frames, seed);
}

std::string Programs::wav(const std::string &name, int frames, int seed) const {
    const Bytes samples = sound(frames, seed);
    std::string content = wavHeader(static_cast<std::uint32_t>(samples.size()));
    content.append(samples.begin(), samples.end());
    return folder.write(name, content).string();
}

std::string Programs::isoImage() const {
    const Bytes data = pattern(1000, 500, 7);
    folder.write("tree/numbers.bin", std::string(data.begin(), data.end()));
    const CommandResult result = runCommand(
        {"xorriso", "-as", "mkisofs", "-quiet", "-R", "-J", "-o", path("image.iso"), path("tree")});
    EXPECT_EQ(result.exitCode, 0) << result.output;
    return path("image.iso");
}

Bytes Programs::bytes(const std::string &name) const {
    const std::string content = readFile(folder / name);
    return {content.begin(), content.end()};
}
