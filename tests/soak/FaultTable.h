// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "tests/recorder/CdAddress.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

enum class FaultStage { checking, leadIn, firstTrack, middle, closing, verifying };

inline constexpr FaultStage allFaultStages[] = {FaultStage::checking,   FaultStage::leadIn,
                                                FaultStage::firstTrack, FaultStage::middle,
                                                FaultStage::closing,    FaultStage::verifying};

const char *nameOf(FaultStage stage);

/// What ends a burn that a fault met.
enum class Expected {
    alert,     ///< An error in words.
    done,      ///< The burn gets by without.
    cancelled, ///< Nothing is said: the user asked for it.
    status,    ///< No burn: the box says what is wrong with drive or disc.
};

/// One thing that goes wrong at one stage.
struct FaultCase {
    /// Acts at a place on the disc, so it is set before the burn; others when the stage is reached.
    bool isPlaced = false;
    Expected expected = Expected::alert;
    std::string statements; ///< Of the recorder's control file; empty for what is no drive's fault.
    enum class Act { faults, cancel, removeSource, insertUsed, insertPressed, insertDvd };
    Act act = Act::faults;
};

struct Fault {
    const char *name;
    /// The case at a stage of an audio (0) or data (1) burn whose lead-out begins at `leadOut`;
    /// nothing where the fault makes no difference or cannot happen.
    std::function<std::optional<FaultCase>(FaultStage stage, int kind, recorder::Lba leadOut)> at;
};

const std::vector<Fault> &allFaults();
