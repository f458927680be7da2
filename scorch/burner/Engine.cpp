// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/burner/Engine.h"

#include "engine/ScorchHooks.h"
#include "scorch/burner/AudioKind.h"
#include "scorch/burner/BurnErrors.h"
#include "scorch/burner/DataContent.h"
#include "scorch/burner/DataKind.h"
#include "scorch/drive/ImageDriveSource.h"
#include "scorch/libburn/LibburnRecording.h"
#include "scorch/mmc/OpticalDriveSource.h"
#include "scorch/mmc/PollingWatcher.h"
#include "scorch/udev/UdevWatcher.h"

#include <algorithm>
#include <cstdlib>
#include <string_view>
#include <thread>
#include <utility>
#include <vector>

namespace scorch {
namespace {

/// A program that has given no way to its main thread hears nothing.
void postThroughHook(std::function<void()> task) {
    const auto &hook = ScorchHooks::shared().postToMainThread;
    if (hook) {
        hook(std::move(task));
    }
}

unsigned decoderThreads() {
    return std::max(std::thread::hardware_concurrency(), 1U);
}

/// A setting of the environment that is on unless it is "0".
bool isWanted(const char *name) {
    const char *const setting = std::getenv(name);
    return setting == nullptr || std::string_view(setting) != "0";
}

std::unique_ptr<DeviceWatcher> watchDevices() {
    if (isWanted("SCORCH_UDEV")) {
        if (std::unique_ptr<DeviceWatcher> watcher = UdevWatcher::create()) {
            return watcher;
        }
    }
    return std::make_unique<PollingWatcher>();
}

OpticalDriveServices driveServices() {
    OpticalDriveServices services;
    services.record = libburnRecordingFactory();
    return services;
}

std::vector<std::unique_ptr<DriveSource>> driveSources() {
    std::vector<std::unique_ptr<DriveSource>> sources;
    sources.push_back(std::make_unique<ImageDriveSource>()); // Somebody has asked for those.
    sources.push_back(std::make_unique<OpticalDriveSource>(watchDevices, driveServices()));
    return sources;
}

AudioProbe probeSong(const std::filesystem::path &path, const std::stop_token &stop) {
    const Result<const AudioBackend *> backend = audioBackend();
    if (!backend) {
        return AudioRefusal{RefusalKind::incompatibleFile, backend.error().localizedDescription()};
    }
    return (*backend)->probe(path, stop);
}

Result<std::unique_ptr<AudioFeeder>> startFeeder(std::vector<AudioTrackRequest> tracks) {
    const Result<const AudioBackend *> backend = audioBackend();
    if (!backend) {
        return backend.error();
    }
    return (*backend)->makeFeeder(std::move(tracks), decoderThreads());
}

std::unique_ptr<DiscKind> audioKind() {
    return std::make_unique<AudioKind>(AudioCheckServices{.expand = expandAudioFiles,
                                                          .probe = probeSong,
                                                          .threads = decoderThreads(),
                                                          .clock = systemClock()},
                                       startFeeder);
}

std::unique_ptr<DiscKind> dataKind() {
    return std::make_unique<DataKind>(
        DataKindServices{.check = {.count = countFiles, .scan = scanPath, .clock = systemClock()},
                         .imageSize = imageSizeOf,
                         .makeContent = DataContent::create,
                         .post = postThroughHook});
}

} // namespace

Engine &Engine::shared() {
    static Engine engine;
    return engine;
}

Engine::Engine() {
    ScorchHooks::shared(); // Made first, so that it outlives the engine at the end of the process.
    drives_ = DriveRegistry::create(driveSources(), postThroughHook);
    const BurnerServices services{
        .post = postThroughHook, .clock = systemClock(), .drives = drives_, .verify = [] {
            return isWanted("SCORCH_VERIFY");
        }};
    audioBurner_ = Burner::create(audioKind(), services);
    dataBurner_ = Burner::create(dataKind(), services);
}

Engine::~Engine() {
    shutDown();
}

void Engine::shutDown() {
    for (const std::shared_ptr<Burner> &burner : {audioBurner_, dataBurner_}) {
        burner->requestStop();
    }
    audioBurner_->shutDown();
    dataBurner_->shutDown();
    drives_->shutDown();
}

} // namespace scorch

std::shared_ptr<Scorcher> Scorcher::audioCDBurner() {
    return scorch::Engine::shared().audioBurner();
}

std::shared_ptr<Scorcher> Scorcher::dataCDBurner() {
    return scorch::Engine::shared().dataBurner();
}

void Scorcher::shutDownAll() {
    scorch::Engine::shared().shutDown();
}

std::vector<std::string> ScorcherDevice::devices() {
    return scorch::Engine::shared().drives()->names();
}

std::unique_ptr<ScorcherDevice> ScorcherDevice::initWithDeviceName(const std::string &deviceName) {
    return scorch::Engine::shared().drives()->makeHandle(deviceName);
}
