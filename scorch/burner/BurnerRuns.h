// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/burner/Burner.h"

#include <memory>
#include <stop_token>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace scorch {

/// A check that runs. Its destructor stops and joins its thread. Main thread, but for what the
/// check tells.
class Burner::CheckRun final : public CheckSink {
public:
    explicit CheckRun(Burner &burner) : burner_(burner) {}
    ~CheckRun() override;

    /// Adds files to the check.
    void join(std::vector<BurnFile> files);

    void accepted(std::shared_ptr<Item> item) override;
    void progressed(CheckProgress progress) override;

    CheckQueue queue;
    std::vector<BurnFile> late; ///< Added when the thread had found its queue empty already.
    CheckRefusals refusals;
    bool cancelRequested = false;
    std::stop_source stop;
    std::thread thread;

private:
    Burner &burner_;
};

/// A burn that runs. Its destructor stops and joins its thread. Main thread, but for what the burn
/// tells.
class Burner::BurnRun final : public BurnObserver {
public:
    BurnRun(Burner &burner, BurnRequest what) : request(std::move(what)), burner_(burner) {}
    ~BurnRun() override;

    void stageBegan(const BurnStage &stage) override;
    void progressed(const BurnProgress &progress) override;

    const BurnRequest request;
    bool stopRequested = false;
    std::stop_source stop;
    std::thread thread;

private:
    Burner &burner_;
};

} // namespace scorch
