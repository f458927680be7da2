// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/BurnFile.h"
#include "engine/BurnItem.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

class ScorchDelegate;
class ScorcherDevice;

/// A burner: collects a list of one kind and burns it. There are two in a process, shared by all
/// who ask: one for audio CDs (Red Book) and one for data CDs (ISO 9660 with Joliet and Rock
/// Ridge). Main thread only. Operations return at once; what takes time goes on in the engine and
/// is reported to the delegate (see ScorchDelegate for the order).
///
/// List operations act at once, so that the next query sees them; their callbacks come later.
class Scorcher {
public:
    virtual ~Scorcher() = default;
    Scorcher(const Scorcher &) = delete;
    Scorcher &operator=(const Scorcher &) = delete;

    static std::shared_ptr<Scorcher> audioCDBurner();
    static std::shared_ptr<Scorcher> dataCDBurner();

    /// Cancels every check and every burn of the process and returns when each drive is at rest and
    /// all threads of the engine have ended. For the end of the program: no callback follows, and
    /// the engine accepts nothing any more. Main thread. Waits as long as the drive needs (an image
    /// drive: a quarter of a second).
    static void shutDownAll();

    /// Not owned; replaces the one before. Null takes it off.
    virtual void setDelegate(ScorchDelegate *delegate) = 0;

    /// Starts to check the files and to add what this burner takes, in the order given; joins a
    /// check that is running. False, and nothing happens, for an empty list and while this burner
    /// burns.
    virtual bool addFiles(std::vector<BurnFile> files) = 0;
    /// Ends a running check; what was accepted stays. Answered with addFilesProgressDidCanceled.
    /// Ignored when no check runs.
    virtual void cancelToAddFiles() = 0;

    virtual void clearAll() = 0;
    /// Null and items that are not in the list are ignored.
    virtual void removeItem(const BurnItemRef &item) = 0;
    virtual void removeItems(const std::vector<BurnItemRef> &items) = 0;
    /// Moves the items at `rows`, in their order, so that they stand together. `destination` is an
    /// insertion point, 0 to the length of the list. The block starts at `destination` if the
    /// largest row passes it, else at `destination` less the number of rows, kept within the list.
    /// Rows that do not exist are ignored.
    virtual void moveBurnItemTo(const IndexSet &rows, std::int64_t destination) = 0;

    /// Null stands for the root; items have no children here, so any other answer is 0.
    virtual std::int64_t numberOfChildrenOfBurnItem(const BurnItemRef &item) const = 0;
    /// Null for an index outside the list.
    virtual BurnItemRef childOfBurnItem(std::int64_t index, const BurnItemRef &parent) const = 0;
    /// Empty for null.
    virtual ItemProperties propertyOfBurnItem(const BurnItemRef &item) const = 0;

    /// What the list takes on the disc: CD frames (audio) or bytes of the image (data). Exact by
    /// the time of addFilesProgressDidEnd and of a removal's callback; never too small before.
    virtual std::uint64_t usedCapacity() const = 0;
    /// usedCapacity is more than the drive's free time (audio) or size (data), which is 0 without a
    /// blank disc. False for null.
    virtual bool isContentOverflowForDevice(const ScorcherDevice *device) const = 0;

    /// A check or a burn of this burner runs, as far as its delegate has been told.
    virtual bool isBusy() const = 0;

    /// Starts to burn the list as it is now. `discName` is UTF-8. Copies what it needs of `device`.
    virtual void burnWithDeviceDiscNamed(const ScorcherDevice *device,
                                         const std::string &discName) = 0;
    /// Asks a running burn to stop; answered with burnProgressDidCanceled (or Error) once the drive
    /// is at rest, at once when nothing burns.
    virtual void stopBurn() = 0;

protected:
    Scorcher() = default;
};
