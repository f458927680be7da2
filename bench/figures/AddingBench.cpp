// SPDX-License-Identifier: GPL-2.0-or-later
// adding_bench audio|data FILES...
// Adds the files to a burner, waits for the end of the check, clears the list and does it again:
// the second time nothing has to be loaded. Prints five numbers: seconds to the end of the first
// check and of the second, the longest task on the main thread in milliseconds and what it would
// have been had no other program run (its processor time), and how many entries the list had.

#include "cli/MainLoop.h"
#include "engine/ScorchDelegate.h"
#include "engine/ScorchHooks.h"
#include "engine/Scorcher.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <optional>
#include <string_view>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;

double secondsSince(Clock::time_point start) {
    return std::chrono::duration<double>(Clock::now() - start).count();
}

/// Of the calling thread.
double processorSeconds() {
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

struct LongestTask {
    double seconds = 0;
    double processorSeconds = 0;
};

class Adding : public ScorchDelegate {
public:
    Adding(std::shared_ptr<Scorcher> burner, std::vector<BurnFile> files, cli::MainLoop &loop)
        : burner_(std::move(burner)), files_(std::move(files)), loop_(loop) {
        burner_->setDelegate(this);
    }

    void start() {
        start_ = Clock::now();
        if (!burner_->addFiles(files_)) {
            loop_.quit(1);
        }
    }

    void addFilesProgressDidEnd(const AddFilesResult & /*result*/) override {
        (first_ ? second_ : first_) = secondsSince(start_);
        count_ = burner_->numberOfChildrenOfBurnItem(nullptr);
        // Not part of what is measured, so in a task of its own.
        loop_.post([this] { burner_->clearAll(); });
    }

    void allFilesDidCleared() override { second_ ? loop_.quit(0) : start(); }

    void print(const LongestTask &longest) const {
        std::printf("%.4f %.4f %.2f %.2f %lld\n", first_.value_or(-1), second_.value_or(-1),
                    longest.seconds * 1000, longest.processorSeconds * 1000,
                    static_cast<long long>(count_));
    }

private:
    std::shared_ptr<Scorcher> burner_;
    std::vector<BurnFile> files_;
    cli::MainLoop &loop_;
    Clock::time_point start_;
    std::optional<double> first_;
    std::optional<double> second_;
    std::int64_t count_ = 0;
};

int run(std::string_view kind, const std::vector<BurnFile> &files) {
    cli::MainLoop loop({});
    LongestTask longest;
    ScorchHooks::shared().postToMainThread = [&](std::function<void()> task) {
        loop.post([&longest, task = std::move(task)] {
            const Clock::time_point start = Clock::now();
            const double processorStart = processorSeconds();
            task();
            longest.seconds = std::max(longest.seconds, secondsSince(start));
            longest.processorSeconds =
                std::max(longest.processorSeconds, processorSeconds() - processorStart);
        });
    };
    int exitCode = 0;
    {
        Adding adding(kind == "audio" ? Scorcher::audioCDBurner() : Scorcher::dataCDBurner(), files,
                      loop);
        loop.post([&adding] { adding.start(); });
        exitCode = loop.run();
        adding.print(longest);
    }
    Scorcher::shutDownAll();
    return exitCode;
}

} // namespace

int main(int argumentCount, char **arguments) {
    const std::string_view kind = argumentCount > 2 ? arguments[1] : "";
    if (kind != "audio" && kind != "data") {
        std::fprintf(stderr, "usage: adding_bench audio|data FILES...\n");
        return 2;
    }
    std::vector<BurnFile> files;
    for (int i = 2; i < argumentCount; ++i) {
        files.push_back({arguments[i], {}, {}});
    }
    return run(kind, files);
}
