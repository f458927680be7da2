// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/ScorchDelegate.h"
#include "scorch/burner/BurnEvents.h"
#include "scorch/support/PostTask.h"

#include <cstdint>
#include <deque>
#include <functional>
#include <optional>
#include <string>

namespace scorch {

/// Where a check stands.
struct CheckProgress {
    std::string name; ///< UTF-8.
    std::int64_t index = 0;
    std::int64_t count = 0;
};

/// Tells a burner's delegate what happens, in order, and never from inside a call that the client
/// makes. Main thread only.
///
/// What has to be told or done next waits in a queue of steps. A step may have to wait until the
/// burner's capacity is exact; those behind it wait too. The tell… operations are for steps. They
/// reach the delegate that is set by then, and one that was set while something ran is first told
/// that it runs and where it stands, as it had been told by then.
class Announcer {
public:
    using Step = std::function<void()>;
    using Call = std::function<void(ScorchDelegate &)>;

    enum class Wait {
        no,
        /// Until the capacity is exact, unless a check runs: its end waits for that anyway.
        forCapacityWhenIdle,
        forCapacity,
    };

    /// Asked before a step that waits for the capacity: true if it is exact. If not, it has been
    /// set about, and run is called again when it is.
    using Settle = std::function<bool()>;

    /// `post` runs a task on the main thread later, or drops it if this has gone by then.
    Announcer(PostTask post, Settle settle);

    /// Null takes it off.
    void setDelegate(ScorchDelegate *delegate);

    /// Queues an answer to a call of the client: it reaches the delegate that is set now, or
    /// nobody if that has been replaced or has gone.
    void answer(Call call, Wait wait = Wait::no);

    /// Queues a step from inside a client's call.
    void later(Step step, Wait wait = Wait::no);

    /// Queues a step from a task on the main thread and takes what can be taken.
    void now(Step step, Wait wait = Wait::no);

    /// Takes the steps that need not wait.
    void run();

    /// Forgets all steps; none is taken any more.
    void shutDown();

    void tellCheckStarted();
    void tellCheckProgress(CheckProgress progress);
    void tell(const Call &call);
    void tellCheckEnded(const Call &call);
    void tellBurnStarted();
    void tellBurnStage(const BurnStage &stage);
    void tellBurnProgress(const BurnProgress &progress);
    void tellBurnEnded(const Call &call);

private:
    struct QueuedStep {
        Step step;
        Wait wait;
    };

    void postRun();
    bool mayRun(Wait wait);
    void replayIfNew();
    void replayTo(ScorchDelegate &delegate) const;

    const PostTask post_;
    const Settle settle_;
    DelegateSlot<ScorchDelegate> delegate_;
    std::uint64_t generation_ = 0; ///< Counts the delegates that were set.
    bool replayDue_ = false;       ///< The delegate does not know yet what runs.
    bool ended_ = false;
    std::deque<QueuedStep> steps_;

    // What delegates have been told of.
    bool checkRuns_ = false;
    std::optional<CheckProgress> checkProgress_;
    bool burnRuns_ = false;
    std::optional<BurnStage> burnStage_;
    std::optional<BurnProgress> burnProgress_;
    bool stageIsLatest_ = false; ///< The stage came after the progress.
};

} // namespace scorch
