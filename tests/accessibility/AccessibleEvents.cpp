// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/accessibility/AccessibleEvents.h"

#include <gtest/gtest.h>

AccessibleEvents::AccessibleEvents(const std::string &kind)
    : kind_(kind),
      listener_(atspi_event_listener_new(
          [](AtspiEvent *event, void *self) {
              static_cast<AccessibleEvents *>(self)->take(*event);
              g_boxed_free(ATSPI_TYPE_EVENT, event); // Each listener is handed a copy.
          },
          this, nullptr)) {
    EXPECT_TRUE(atspi_event_listener_register(listener_, kind_.c_str(), nullptr));
}

AccessibleEvents::~AccessibleEvents() {
    atspi_event_listener_deregister(listener_, kind_.c_str(), nullptr);
    g_object_unref(listener_);
}

void AccessibleEvents::take(const AtspiEvent &event) {
    const Accessible source(ATSPI_ACCESSIBLE(g_object_ref(event.source)));
    events_.push_back({source, source.name(), event.detail1});
}

std::vector<std::string> AccessibleEvents::names(AtspiRole role) const {
    std::vector<std::string> names;
    for (const Event &event : events_) {
        if (event.source.role() == role) {
            names.push_back(event.name);
        }
    }
    return names;
}
