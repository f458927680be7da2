// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/system/Burning.h"

#include <algorithm>

namespace fs = std::filesystem;

namespace {

std::string littleEndian(std::uint64_t value, std::size_t bytes) {
    std::string text;
    for (std::size_t i = 0; i < bytes; ++i) {
        text += static_cast<char>((value >> (8 * i)) & 0xFFU);
    }
    return text;
}

} // namespace

Burning::Burning() : imageFolder(folder / "images") {
    fs::create_directory(imageFolder);
}

std::vector<std::string> Burning::burnArguments(const std::string &kind, const std::string &name,
                                                const std::vector<std::string> &files) const {
    std::vector<std::string> arguments = {
        "burn", "--" + kind, "--image-drive", imageFolder, "--name", name, "--"};
    arguments.insert(arguments.end(), files.begin(), files.end());
    return arguments;
}

void Burning::burn(const std::string &kind, const std::string &name,
                   const std::vector<std::string> &files) const {
    ScorchProcess scorch(burnArguments(kind, name, files));
    EXPECT_EQ(scorch.wait(), 0) << scorch.output() << scorch.errors();
}

std::vector<std::string> Burning::images() const {
    std::vector<std::string> names;
    for (const auto &entry : fs::directory_iterator(imageFolder)) {
        names.push_back(entry.path().filename());
    }
    std::sort(names.begin(), names.end());
    return names;
}

std::vector<std::string> Burning::visibleImages() const {
    std::vector<std::string> names = images();
    std::erase_if(names, [](const std::string &name) { return name.front() == '.'; });
    return names;
}

std::string Burning::sparseFile(const std::string &name, std::uintmax_t bytes) const {
    const fs::path path = folder.write(name, "");
    fs::resize_file(path, bytes);
    return path;
}

std::string Burning::silentSong(const std::string &name, std::uint32_t seconds) const {
    const std::uint64_t bytes = std::uint64_t{seconds} * 44100 * 4;
    const std::string header = "RIFF" + littleEndian(36 + bytes, 4) + "WAVEfmt " +
                               littleEndian(16, 4) + littleEndian(1, 2) + littleEndian(2, 2) +
                               littleEndian(44100, 4) + littleEndian(176'400, 4) +
                               littleEndian(4, 2) + littleEndian(16, 2) + "data" +
                               littleEndian(bytes, 4);
    const fs::path path = folder.write(name, header);
    fs::resize_file(path, header.size() + bytes);
    return path;
}

std::string medium(const std::string &name) {
    return std::string(TEST_MEDIA_DIR "/") + name;
}
