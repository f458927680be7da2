// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/AddFilesResult.h"
#include "engine/BurnItem.h"
#include "engine/DelegateSlot.h"
#include "engine/ScorchError.h"

#include <cstdint>
#include <string>
#include <vector>

/// What a burner tells its client. Every call arrives on the main thread, in the order in which
/// things happened, never from inside a call that the client makes. Not owned by the burner.
///
/// Checking files:  addFilesProgressDidStarted, then any mix of
///   addFilesProgressDidChangedIndexOf and fileDidAdded, then one of addFilesProgressDidEnd and
///   addFilesProgressDidCanceled.
/// Burning:  burnProgressDidStarted, burnProgressIsPreparing, for each track
///   burnProgressIsOpeningTrackOf, burnProgressIsWriteingTrackOf, burnProgressDidCloseTrackOf, then
///   burnProgressDidCloseSession, burnProgressIsFinishing, burnProgressIsVerifying (unless left
///   out), with burnProgressDidChanagedLefttime between them; last, exactly one of
///   burnProgressDidDone, burnProgressDidCanceled and burnProgressDidError. A burn that is refused
///   sends burnProgressDidError alone. Once the client has called stopBurn, burnProgressDidDone
///   does not follow any more.
///
/// A delegate that is set while a check or a burn runs is sent the Started call of it and the
/// present state first.
class ScorchDelegate : public DetachingDelegate<ScorchDelegate> {
public:
    virtual ~ScorchDelegate() = default;

    /// The list was emptied by clearAll.
    virtual void allFilesDidCleared() {}

    virtual void addFilesProgressDidStarted() {}
    virtual void addFilesProgressDidCanceled() {}
    /// File number `index` (from 1) of `count` (never 0; it may rise) is being looked at; `name` is
    /// its name in UTF-8. At most four a second.
    virtual void addFilesProgressDidChangedIndexOf(const std::string & /*name*/,
                                                   std::int64_t /*index*/, std::int64_t /*count*/) {
    }
    /// The item is in the list. Sent for each one.
    virtual void fileDidAdded(const BurnItemRef & /*item*/) {}
    virtual void addFilesProgressDidEnd(const AddFilesResult & /*result*/) {}

    virtual void burnItemDidDelete(const BurnItemRef & /*item*/) {}
    virtual void burnItemDidSorted() {}
    virtual void burnItemsDidDelete(const std::vector<BurnItemRef> & /*items*/) {}

    virtual void burnProgressDidStarted() {}
    virtual void burnProgressDidError(const ScorchError & /*error*/) {}
    virtual void burnProgressIsPreparing() {}
    virtual void burnProgressDidCanceled() {}
    /// `fraction` of the whole job, verification included, 0 to 1, never falling; `lefttime` in CD
    /// frames. At most four a second.
    virtual void burnProgressDidChanagedLefttime(double /*fraction*/, std::uint64_t /*lefttime*/) {}
    /// Tracks count from 1.
    virtual void burnProgressIsOpeningTrackOf(std::uint64_t /*track*/, std::uint64_t /*count*/) {}
    virtual void burnProgressIsWriteingTrackOf(std::uint64_t /*track*/, std::uint64_t /*count*/) {}
    virtual void burnProgressDidCloseTrackOf(std::uint64_t /*track*/, std::uint64_t /*count*/) {}
    virtual void burnProgressDidCloseSession() {}
    virtual void burnProgressIsFinishing() {}
    virtual void burnProgressIsVerifying() {}
    virtual void burnProgressDidDone() {}
};
