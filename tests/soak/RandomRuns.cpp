// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/soak/RandomRuns.h"

#include "tests/soak/RandomFault.h"

#include <cstdio>
#include <string>

namespace {

constexpr int sourceCount = 3;

const char *nameOf(BurnEnding::Kind kind) {
    switch (kind) {
    case BurnEnding::Kind::done:
        return "done";
    case BurnEnding::Kind::alert:
        return "alert";
    case BurnEnding::Kind::cancelled:
        return "cancelled";
    case BurnEnding::Kind::hung:
        return "HUNG";
    }
    return "";
}

} // namespace

/// A disc that cannot be burned first, now and then; and sometimes before it was looked at.
bool RandomRuns::changeDiscs() {
    scene_.clearFaults();
    for (int others = pick(random_, 2); others > 0; --others) {
        switch (pick(random_, 2)) {
        case 0:
            scene_.insertUsed();
            break;
        case 1:
            scene_.insertPressed();
            break;
        default:
            scene_.insertDvd();
        }
        session_.waitUntil([] { return false; }, std::chrono::milliseconds(pick(random_, 1500)));
    }
    scene_.insertBlank(pick(random_, 1) == 0 ? recorder::DiscKind::CdR : recorder::DiscKind::CdRw);
    return session_.waitUntilReady();
}

bool RandomRuns::runOne(int number) {
    const int kind = pick(random_, 1);
    if (!changeDiscs() || !session_.fillList(kind)) {
        std::printf("%d: NOT READY: %s\n", number, session_.status().toStdString().c_str());
        return false;
    }
    const int what = pick(random_, 2); // Nothing, a cancel, a fault.
    const std::string fault = randomFault(random_);
    // Speeds at which a burn takes from nearly nothing to two seconds.
    scene_.setSpeed(pick(random_, 1) == 0 ? 0 : 600 + pick(random_, 4000));
    int looksLeft = pick(random_, 60);
    bool hasActed = false;
    const BurnEnding ending = session_.burn([&](BurnStep) {
        if (hasActed || what == 0 || looksLeft-- > 0) {
            return;
        }
        hasActed = true;
        if (what == 1) {
            session_.cancel();
        } else {
            scene_.setFaults(fault + "\n");
        }
    });
    scene_.setSpeed(0);
    scene_.clearFaults();
    const bool isDone = ending.kind == BurnEnding::Kind::done;
    const bool isQuiet = what == 0 || !hasActed;
    const bool isListRight = isDone || session_.rows() == sourceCount;
    const bool isDriveFree = session_.waitUntil(
        [this] { return SoakScene::isFree() && !scene_.isDoorLocked(); }, std::chrono::seconds(10));
    const bool isGood =
        ending.kind != BurnEnding::Kind::hung && isListRight && isDriveFree && (!isQuiet || isDone);
    std::string event = "-";
    if (hasActed) {
        event = what == 1 ? "cancel" : fault;
    }
    std::printf("%d: %s, %s: %s %s%s%s%s\n", number, kind == 0 ? "audio" : "data", event.c_str(),
                nameOf(ending.kind), ending.text.toStdString().c_str(),
                isListRight ? "" : " LIST LOST", isDriveFree ? "" : " DRIVE HELD",
                isGood ? "" : " BAD");
    std::fflush(stdout);
    return isGood;
}

int RandomRuns::run(int count) {
    int failures = 0;
    for (int number = 1; number <= count; ++number) {
        failures += runOne(number) ? 0 : 1;
    }
    return failures;
}
