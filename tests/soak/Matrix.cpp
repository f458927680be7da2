// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/soak/Matrix.h"

#include <cstdio>

using namespace std::chrono_literals;

namespace {

/// Slow enough that each stage lasts, fast enough that a matrix ends: in front of sound there is a
/// lead-in with texts, ten times as long as the songs.
constexpr int sectorsPerSecond[] = {2500, 800};
constexpr double allowedBlocking = 50.0; // Milliseconds.
constexpr int sourceCount = 3;

const char *kindName(int kind) {
    return kind == 0 ? "audio" : "data";
}

bool isReached(FaultStage stage, BurnStep step) {
    switch (stage) {
    case FaultStage::checking:
    case FaultStage::leadIn:
        return step != BurnStep::notStarted;
    case FaultStage::firstTrack:
        return step >= BurnStep::firstTrack;
    case FaultStage::middle:
        return step >= BurnStep::middle;
    case FaultStage::closing:
        return step >= BurnStep::closing;
    case FaultStage::verifying:
        return step >= BurnStep::verifying;
    }
    return false;
}

std::string read(const BurnEnding &ending) {
    switch (ending.kind) {
    case BurnEnding::Kind::done:
        return "(burned)";
    case BurnEnding::Kind::cancelled:
        return "(cancelled)";
    case BurnEnding::Kind::hung:
        return "HANGS: " + ending.text.toStdString();
    case BurnEnding::Kind::alert:
        return ending.text.toStdString();
    }
    return {};
}

bool isExpected(Expected expected, const BurnEnding &ending) {
    switch (expected) {
    case Expected::alert:
        return ending.kind == BurnEnding::Kind::alert && !ending.text.isEmpty();
    case Expected::done:
        return ending.kind == BurnEnding::Kind::done;
    case Expected::cancelled:
        // A disc that was complete before the request is an error that says so.
        return ending.kind == BurnEnding::Kind::cancelled || ending.kind == BurnEnding::Kind::alert;
    case Expected::status:
        return false;
    }
    return false;
}

const char *word(bool isSo) {
    return isSo ? "yes" : "NO";
}

} // namespace

int Matrix::run(const std::string &onlyFault) {
    std::printf("| disc | fault | stage | the user reads | list kept | next disc | blocked, ms |\n"
                "|---|---|---|---|---|---|---:|\n");
    for (const int kind : {0, 1}) {
        if (!learnLeadOut(kind)) {
            std::printf("| %s | none | | NOT BURNED | | | |\n", kindName(kind));
            return failures_ + 1;
        }
        for (const Fault &fault : allFaults()) {
            if (std::string(fault.name).find(onlyFault) == std::string::npos) {
                continue;
            }
            for (const FaultStage stage : allFaultStages) {
                const auto faultCase = fault.at(stage, kind, leadOut_[kind]);
                if (faultCase) {
                    print(fault, stage, kind, meet(*faultCase, stage, kind));
                }
            }
        }
    }
    return failures_;
}

bool Matrix::learnLeadOut(int kind) {
    scene_.insertBlank();
    if (!session_.fillList(kind) || !session_.waitUntilReady()) {
        return false;
    }
    if (session_.burn([](BurnStep) {}).kind != BurnEnding::Kind::done) {
        return false;
    }
    leadOut_[kind] = scene_.disc().sessions.at(0).leadOut;
    return true;
}

bool Matrix::prepare(int kind) {
    scene_.clearFaults();
    scene_.putFileBack();
    scene_.insertBlank();
    return session_.fillList(kind) && session_.waitUntilReady();
}

void Matrix::act(const FaultCase &faultCase) {
    switch (faultCase.act) {
    case FaultCase::Act::faults:
        return scene_.setFaults(faultCase.statements);
    case FaultCase::Act::cancel:
        return session_.cancel();
    case FaultCase::Act::removeSource:
        return scene_.takeFileAway();
    case FaultCase::Act::insertUsed:
        return scene_.insertUsed();
    case FaultCase::Act::insertPressed:
        return scene_.insertPressed();
    case FaultCase::Act::insertDvd:
        return scene_.insertDvd();
    }
}

Matrix::Cell Matrix::meetWhileChecking(const FaultCase &faultCase) {
    Cell cell;
    scene_.setFaults("becoming-ready 30\n");
    scene_.insertBlank();
    const QString checking = QStringLiteral("Checking disk...");
    session_.waitUntil([&] { return session_.status() == checking; }, 10s);
    act(faultCase);
    // Unplugged, the drive's last status stays, as there is nothing to ask any more.
    session_.waitUntil([&] { return session_.status() != checking; }, 20s);
    session_.waitUntil([] { return false; }, 1500ms); // It must stay so.
    cell.read = session_.status().toStdString();
    cell.isAsExpected = !cell.read.empty();
    return cell;
}

Matrix::Cell Matrix::meet(const FaultCase &faultCase, FaultStage stage, int kind) {
    Cell cell;
    if (!prepare(kind)) {
        cell.read = "NOT READY: " + session_.status().toStdString();
        return cell;
    }
    session_.heartbeat().restart();
    if (stage == FaultStage::checking) {
        cell = meetWhileChecking(faultCase);
    } else {
        scene_.setSpeed(sectorsPerSecond[kind]);
        bool hasActed = faultCase.isPlaced;
        if (faultCase.isPlaced) {
            act(faultCase);
        }
        const BurnEnding ending = session_.burn([&](BurnStep step) {
            if (!hasActed && isReached(stage, step)) {
                hasActed = true;
                act(faultCase);
            }
        });
        scene_.setSpeed(0);
        cell.read = read(ending);
        cell.isAsExpected = isExpected(faultCase.expected, ending) && hasActed;
    }
    cell.isListKept = faultCase.expected == Expected::done || session_.rows() == sourceCount;
    cell.isNextBurned = burnNext(kind);
    cell.blocked = session_.heartbeat().longestMilliseconds();
    return cell;
}

bool Matrix::burnNext(int kind) {
    if (!prepare(kind)) {
        return false;
    }
    const bool isBurned = session_.burn([](BurnStep) {}).kind == BurnEnding::Kind::done;
    return isBurned && !scene_.isDoorLocked() && SoakScene::isFree();
}

void Matrix::print(const Fault &fault, FaultStage stage, int kind, const Cell &cell) {
    const bool isGood =
        cell.isAsExpected && cell.isListKept && cell.isNextBurned && cell.blocked < allowedBlocking;
    failures_ += isGood ? 0 : 1;
    std::printf("| %s | %s | %s | %s%s | %s | %s | %.1f |\n", kindName(kind), fault.name,
                nameOf(stage), cell.isAsExpected ? "" : "UNEXPECTED: ", cell.read.c_str(),
                word(cell.isListKept), word(cell.isNextBurned), cell.blocked);
    std::fflush(stdout);
}
