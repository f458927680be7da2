// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/recorder/DriveScene.h"

#include "tests/recorder/DiscStore.h"
#include "tests/recorder/Files.h"
#include "tests/recorder/SectorFrame.h"

#include <fcntl.h>
#include <stdexcept>
#include <utility>

namespace recorder {

namespace {

void require(bool isDone, const std::filesystem::path &path) {
    if (!isDone) {
        throw std::runtime_error("cannot write " + path.string());
    }
}

} // namespace

DriveScene::DriveScene(const std::filesystem::path &root, const std::string &name)
    : folder_(root / name) {
    std::filesystem::create_directories(folder_);
}

void DriveScene::makeDisc(const Disc &disc, const std::string &name) const {
    require(DiscStore(folder_ / name).create(disc), folder_ / name);
}

Disc DriveScene::disc(const std::string &name) const {
    std::string error;
    std::optional<Disc> disc = DiscStore(folder_ / name).load(error);
    if (!disc) {
        throw std::runtime_error("no disc in " + (folder_ / name).string() + " " + error);
    }
    return *std::move(disc);
}

Bytes DriveScene::sectors(Lba first, Lba count, const std::string &name) const {
    Bytes bytes(static_cast<std::size_t>(count) * kRawSectorBytes);
    if (!DiscStore(folder_ / name).read(DiscStore::offsetOf(first), bytes)) {
        throw std::runtime_error("cannot read " + (folder_ / name).string());
    }
    return bytes;
}

void DriveScene::describe(std::string_view text) const {
    require(replaceFile(folder_ / "drive", text), folder_ / "drive");
}

void DriveScene::control(std::string_view text) const {
    require(replaceFile(folder_ / "control", text), folder_ / "control");
}

void DriveScene::startLog() const {
    require(openFile(folder_ / "log", O_WRONLY | O_CREAT | O_TRUNC).isOpen(), folder_ / "log");
}

std::string DriveScene::log() const {
    return readWhole(folder_ / "log").value_or("");
}

Disc blankDisc(DiscKind kind) {
    Disc disc;
    disc.kind = kind;
    return disc;
}

void makeDataDisc(const std::filesystem::path &folder, DiscKind kind, ByteView userData) {
    Disc disc;
    disc.kind = kind;
    Track track;
    track.form = SectorForm::Mode1;
    track.control = kControlData;
    track.pregap = kPregapBlocks;
    track.end = track.recorded = static_cast<Lba>(userData.size() / kUserDataBytes);
    disc.sessions.push_back({{track}, true, track.end});
    disc.isFinal = true;
    const DiscStore store(folder);
    require(store.create(disc), folder);
    Bytes sector(kRawSectorBytes);
    for (Lba lba = 0; lba < track.end; ++lba) {
        const std::size_t at = static_cast<std::size_t>(lba) * kUserDataBytes;
        frameSector(sector, track.form, lba, userData.subspan(at, kUserDataBytes));
        require(store.write(lba, sector), folder);
    }
}

} // namespace recorder
