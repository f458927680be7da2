// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/soak/SoakScene.h"

#include "tests/recorder/DriveMemory.h"

#include <fcntl.h>
#include <unistd.h>

#include <fstream>
#include <random>
#include <stdexcept>
#include <utility>

namespace {

constexpr std::size_t bytesPerSector = 2352;
constexpr std::size_t fileBytes = 800'000;

std::string littleEndian(std::uint32_t value) {
    std::string bytes;
    for (unsigned shift = 0; shift < 32; shift += 8) {
        bytes += static_cast<char>(value >> shift & 0xffU);
    }
    return bytes;
}

std::string noise(std::size_t bytes, std::uint32_t seed) {
    std::mt19937 random(seed);
    std::string text(bytes, '\0');
    for (char &byte : text) {
        byte = static_cast<char>(random());
    }
    return text;
}

/// Format: PCM, two channels of 16 bits, 44.1 kHz.
std::string song(std::uint32_t seed) {
    const std::string sound =
        noise(static_cast<std::size_t>(SoakScene::songSectors) * bytesPerSector, seed);
    const auto bytes = static_cast<std::uint32_t>(sound.size());
    const std::string format = std::string("\1\0\2\0", 4) + littleEndian(44'100) +
                               littleEndian(44'100 * 4) + std::string("\4\0\x10\0", 4);
    return "RIFF" + littleEndian(bytes + 36) + "WAVEfmt " + littleEndian(16) + format + "data" +
           littleEndian(bytes) + sound;
}

void write(const std::filesystem::path &path, const std::string &content) {
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    if (!file.write(content.data(), static_cast<std::streamsize>(content.size()))) {
        throw std::runtime_error("cannot write " + path.string());
    }
}

recorder::DriveMemory memoryOf(const recorder::DriveScene &drive) {
    recorder::DriveMemory memory;
    std::ifstream file(drive.folder() / "memory", std::ios::binary);
    file.read(reinterpret_cast<char *>(&memory), sizeof memory);
    return memory;
}

recorder::Disc recordedDisc(recorder::DiscKind kind) {
    recorder::Disc disc = recorder::blankDisc(kind);
    recorder::Track track;
    track.form = recorder::SectorForm::Mode1;
    track.control = recorder::kControlData;
    track.pregap = 150;
    track.end = track.recorded = 1000;
    disc.sessions.push_back({{track}, true, track.end});
    disc.isFinal = true;
    return disc;
}

} // namespace

SoakScene::SoakScene(const std::filesystem::path &root, std::filesystem::path workFolder)
    : workFolder_(std::move(workFolder)), drive_(root) {
    for (const char *name : {"One.wav", "Two.wav", "Three.wav"}) {
        songs_.push_back(workFolder_ / name);
    }
    for (const char *name : {"One.bin", "Two.bin", "Three.bin"}) {
        files_.push_back(workFolder_ / name);
    }
    makeSources();
    insertBlank();
}

void SoakScene::makeSources() {
    std::uint32_t seed = 1;
    for (const std::filesystem::path &path : songs_) {
        write(path, song(seed++));
    }
    for (const std::filesystem::path &path : files_) {
        write(path, noise(fileBytes, seed++));
    }
}

void SoakScene::takeFileAway() {
    std::filesystem::rename(files_.at(1), workFolder_ / "away");
}

void SoakScene::putFileBack() {
    if (std::filesystem::exists(workFolder_ / "away")) {
        std::filesystem::rename(workFolder_ / "away", files_.at(1));
    }
}

void SoakScene::insert(const recorder::Disc &disc) {
    const std::string name = "disc-" + std::to_string(++discs_);
    drive_.makeDisc(disc, name);
    if (discs_ > 2) { // The one before may still be looked at.
        std::filesystem::remove_all(drive_.folder() / ("disc-" + std::to_string(discs_ - 2)));
    }
    order_ = "disc " + name + " #" + std::to_string(discs_) + "\n";
    control();
}

void SoakScene::insertUsed() {
    insert(recordedDisc(recorder::DiscKind::CdR));
}

void SoakScene::insertPressed() {
    insert(recordedDisc(recorder::DiscKind::CdRom));
}

void SoakScene::insertDvd() {
    insert(recorder::blankDisc(recorder::DiscKind::DvdR));
}

void SoakScene::setSpeed(int sectorsPerSecond) {
    speed_ = sectorsPerSecond > 0 ? "slow " + std::to_string(sectorsPerSecond) + "\n" : "";
    control();
}

void SoakScene::setFaults(const std::string &statements) {
    faults_ = statements;
    control();
}

void SoakScene::control() const {
    drive_.control(order_ + speed_ + faults_);
}

recorder::Disc SoakScene::disc() const {
    return drive_.disc("disc-" + std::to_string(discs_));
}

std::optional<recorder::Lba> SoakScene::position() const {
    const recorder::DriveMemory memory = memoryOf(drive_);
    if (memory.recording.mode == recorder::WriteMode::None) {
        return std::nullopt;
    }
    return memory.recording.next;
}

bool SoakScene::isDoorLocked() const {
    return memoryOf(drive_).isLocked;
}

bool SoakScene::isFree() {
    const int descriptor = ::open("/dev/sr0", O_RDWR | O_EXCL | O_NONBLOCK | O_CLOEXEC);
    if (descriptor < 0) {
        return false;
    }
    ::close(descriptor);
    return true;
}
