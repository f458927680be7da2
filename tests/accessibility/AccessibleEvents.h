// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "tests/accessibility/Accessible.h"

#include <memory>
#include <string>
#include <vector>

/// What programs have told assistive technologies of one kind, in its order, from when this was
/// made. Comes in while something is waited for.
class AccessibleEvents {
public:
    struct Event {
        Accessible source;
        std::string name; ///< The source's, when the event came.
        int detail = 0;
    };

    /// The kind in AT-SPI's notation: "object:state-changed:focused".
    explicit AccessibleEvents(const std::string &kind);
    ~AccessibleEvents();
    AccessibleEvents(const AccessibleEvents &) = delete;
    AccessibleEvents &operator=(const AccessibleEvents &) = delete;

    const std::vector<Event> &all() const { return events_; }
    void forget() { events_.clear(); }

    /// The names of the events whose source has this role.
    std::vector<std::string> names(AtspiRole role) const;

private:
    void take(const AtspiEvent &event);

    std::string kind_;
    AtspiEventListener *listener_;
    std::vector<Event> events_;
};
