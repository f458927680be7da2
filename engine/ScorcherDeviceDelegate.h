// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/DelegateSlot.h"

#include <string>

/// What a drive handle tells its client, always on the main thread, never from inside a call that
/// the client makes. Not owned by the handle.
class ScorcherDeviceDelegate : public DetachingDelegate<ScorcherDeviceDelegate> {
public:
    virtual ~ScorcherDeviceDelegate() = default;

    /// The state of the drive, or of the disc in it, is another than before. Sent for real changes
    /// only, and held back from the start of a burn on the drive to its end.
    virtual void deviceStatusDidChanged() {}

    /// A drive went away or was connected. Sent to the delegate that was set last on any handle,
    /// one on the empty name and one that has been destroyed since included.
    virtual void deviceDidDisappeared(const std::string & /*deviceName*/) {}
    virtual void deviceDidAppeared(const std::string & /*deviceName*/) {}
};
