// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/Scorcher.h"
#include "scorch/burner/Announcer.h"
#include "scorch/burner/BurnJob.h"
#include "scorch/burner/BurnList.h"
#include "scorch/burner/Check.h"
#include "scorch/burner/DiscKind.h"
#include "scorch/drive/DriveRegistry.h"
#include "scorch/support/Clock.h"
#include "scorch/support/PostTask.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace scorch {

/// What a burner needs of the engine around it.
struct BurnerServices {
    PostTask post;
    Clock clock = systemClock();
    std::shared_ptr<DriveRegistry> drives;
    std::function<bool()> verify; ///< Asked at the start of each burn.
};

/// A burner of either kind: the list, the check that fills it and the burn that empties it on a
/// disc. All of it belongs to the main thread; a check and a burn each run on a thread of their
/// own, which sends what happens as values. Owned by the engine; made by create.
class Burner final : public Scorcher, public std::enable_shared_from_this<Burner> {
public:
    static std::shared_ptr<Burner> create(std::unique_ptr<DiscKind> kind, BurnerServices services);
    ~Burner() override;

    void setDelegate(ScorchDelegate *delegate) override;
    bool addFiles(std::vector<BurnFile> files) override;
    void cancelToAddFiles() override;
    void clearAll() override;
    void removeItem(const BurnItemRef &item) override;
    void removeItems(const std::vector<BurnItemRef> &items) override;
    void moveBurnItemTo(const IndexSet &rows, std::int64_t destination) override;
    std::int64_t numberOfChildrenOfBurnItem(const BurnItemRef &item) const override;
    BurnItemRef childOfBurnItem(std::int64_t index, const BurnItemRef &parent) const override;
    ItemProperties propertyOfBurnItem(const BurnItemRef &item) const override;
    std::uint64_t usedCapacity() const override;
    bool isContentOverflowForDevice(const ScorcherDevice *device) const override;
    void burnWithDeviceDiscNamed(const ScorcherDevice *device,
                                 const std::string &discName) override;
    bool isBusy() const override { return check_ != nullptr || burn_ != nullptr; }
    void stopBurn() override;

    /// Tells a check and a burn to stop.
    void requestStop();

    /// Cancels a check and a burn and returns when their threads have ended and the drive is at
    /// rest. Nothing is told and nothing is done any more. May be called again.
    void shutDown();

private:
    class CheckRun;
    class BurnRun;
    friend class CheckRun;
    friend class BurnRun;

    Burner(std::unique_ptr<DiscKind> kind, BurnerServices services);

    /// Hands a task to the main thread; dropped if this has gone by then.
    void post(std::function<void()> task);
    bool settleCapacity();
    std::vector<ItemRef> removeFromList(const std::vector<BurnItemRef> &items);

    // Burner+Adding.cpp
    void startCheck(std::vector<BurnFile> files);
    void runCheck();
    void itemAccepted(const std::shared_ptr<Item> &item);
    void checkThreadEnded(CheckRefusals refusals);
    void endCheck();

    // Burner+Burning.cpp
    std::optional<ScorchError> refusalToBurn(const std::shared_ptr<Drive> &drive,
                                             const std::string &driveName) const;
    bool isBurningOn() const;
    void beginBurn();
    void burnThreadEnded(const BurnEnd &end);
    void endBurn(const BurnEnd &end);

    const std::unique_ptr<DiscKind> kind_;
    const BurnerServices services_;
    Announcer announcer_;
    BurnList list_;
    std::unique_ptr<CheckRun> check_; ///< While files are checked.
    std::vector<BurnFile> nextCheck_; ///< Added while a cancelled check comes to its end.
    std::unique_ptr<BurnRun> burn_;   ///< While a disc is burned.
    bool ended_ = false;
};

} // namespace scorch
