// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/soak/FaultTable.h"

namespace {

using recorder::Lba;
using Case = std::optional<FaultCase>;

/// The block that stands for a stage of writing.
std::optional<Lba> blockOf(FaultStage stage, Lba leadOut) {
    switch (stage) {
    case FaultStage::leadIn:
        return -150; // The pregap is written first.
    case FaultStage::firstTrack:
        return 100;
    case FaultStage::middle:
        return leadOut / 2;
    case FaultStage::closing:
        return leadOut - 1;
    default:
        return std::nullopt;
    }
}

Case placed(const char *statement, std::optional<Lba> block) {
    if (!block) {
        return std::nullopt;
    }
    return FaultCase{.isPlaced = true,
                     .expected = Expected::alert,
                     .statements = std::string(statement) + " " + std::to_string(*block) + "\n"};
}

Case whenReached(FaultStage stage, const char *statements) {
    return FaultCase{.isPlaced = false,
                     .expected = stage == FaultStage::checking ? Expected::status : Expected::alert,
                     .statements = statements};
}

Case act(FaultCase::Act what, Expected expected) {
    return FaultCase{.isPlaced = false, .expected = expected, .statements = {}, .act = what};
}

Case otherDisc(FaultStage stage, FaultCase::Act what) {
    return stage == FaultStage::checking ? act(what, Expected::status) : std::nullopt;
}

/// A hand, a cable, another program.
std::vector<Fault> faultsFromOutside() {
    return {
        {"stops answering",
         [](FaultStage stage, int, Lba) {
             return whenReached(stage, "silent 200\n");
         }},
        {"unplugged",
         [](FaultStage stage, int, Lba) {
             return whenReached(stage, "vanished\n");
         }},
        {"tray opened by hand",
         [](FaultStage stage, int, Lba) {
             return whenReached(stage, "tray open #1\n");
         }},
        {"held by another program",
         [](FaultStage stage, int, Lba) -> Case {
             if (stage != FaultStage::leadIn) {
                 return std::nullopt; // Who has the drive keeps it.
             }
             return FaultCase{.isPlaced = true, .statements = "busy\n"};
         }},
        {"no permission",
         [](FaultStage stage, int, Lba) -> Case {
             if (stage != FaultStage::leadIn) {
                 return std::nullopt; // It is asked when the device is opened.
             }
             return FaultCase{.isPlaced = true, .statements = "no-permission\n"};
         }},
        {"used disc",
         [](FaultStage stage, int, Lba) {
             return otherDisc(stage, FaultCase::Act::insertUsed);
         }},
        {"pressed disc",
         [](FaultStage stage, int, Lba) {
             return otherDisc(stage, FaultCase::Act::insertPressed);
         }},
        {"DVD",
         [](FaultStage stage, int, Lba) {
             return otherDisc(stage, FaultCase::Act::insertDvd);
         }},
        {"source file removed",
         [](FaultStage stage, int kind, Lba) -> Case {
             if (stage != FaultStage::leadIn || kind != 1) {
                 return std::nullopt; // Short songs are decoded ahead, files may be open already.
             }
             return FaultCase{
                 .isPlaced = true, .statements = {}, .act = FaultCase::Act::removeSource};
         }},
        {"cancelled",
         [](FaultStage stage, int, Lba) -> Case {
             return stage == FaultStage::checking
                        ? std::nullopt
                        : act(FaultCase::Act::cancel, Expected::cancelled);
         }},
    };
}

/// The disc, the laser, the electronics.
std::vector<Fault> faultsOfDriveAndDisc() {
    return {
        {"write error",
         [](FaultStage stage, int, Lba leadOut) {
             return placed("write-error", blockOf(stage, leadOut));
         }},
        {"power calibration",
         [](FaultStage stage, int, Lba) -> Case {
             if (stage != FaultStage::leadIn) {
                 return std::nullopt;
             }
             return FaultCase{.isPlaced = true, .statements = "power-calibration\n"};
         }},
        {"loss of streaming",
         [](FaultStage stage, int, Lba leadOut) {
             return placed("loss-of-streaming", blockOf(stage, leadOut));
         }},
        {"CD-TEXT refused",
         [](FaultStage stage, int kind, Lba) -> Case {
             if (stage != FaultStage::leadIn || kind != 0) {
                 return std::nullopt;
             }
             return FaultCase{
                 .isPlaced = true, .expected = Expected::done, .statements = "refuse-cd-text\n"};
         }},
        {"read error",
         [](FaultStage stage, int, Lba leadOut) {
             return stage == FaultStage::verifying ? placed("read-error", leadOut / 2)
                                                   : std::nullopt;
         }},
        {"flipped byte",
         [](FaultStage stage, int, Lba leadOut) -> Case {
             if (stage != FaultStage::verifying) {
                 return std::nullopt;
             }
             return FaultCase{.isPlaced = true,
                              .statements = "flip " + std::to_string(leadOut / 2) + " 77\n"};
         }},
        {"read offset of 667 samples",
         [](FaultStage stage, int kind, Lba) -> Case {
             if (stage != FaultStage::verifying || kind != 0) {
                 return std::nullopt;
             }
             return FaultCase{
                 .isPlaced = true, .expected = Expected::done, .statements = "read-offset 667\n"};
         }},
    };
}

} // namespace

const char *nameOf(FaultStage stage) {
    switch (stage) {
    case FaultStage::checking:
        return "checking";
    case FaultStage::leadIn:
        return "lead-in";
    case FaultStage::firstTrack:
        return "first track";
    case FaultStage::middle:
        return "middle";
    case FaultStage::closing:
        return "closing";
    case FaultStage::verifying:
        return "verifying";
    }
    return "";
}

const std::vector<Fault> &allFaults() {
    static const std::vector<Fault> faults = [] {
        std::vector<Fault> all = faultsOfDriveAndDisc();
        for (Fault &fault : faultsFromOutside()) {
            all.push_back(std::move(fault));
        }
        return all;
    }();
    return faults;
}
