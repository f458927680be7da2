// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/accessibility/Waiting.h"

#include <gtest/gtest.h>

#include <chrono>
#include <glib.h>

namespace {

constexpr std::chrono::seconds limit{30};
constexpr guint tick = 10; // Milliseconds after which the question is asked again at the latest.

} // namespace

bool waitUntil(const std::string &what, const std::function<bool()> &isSo) {
    const auto deadline = std::chrono::steady_clock::now() + limit;
    const guint timer = g_timeout_add(
        tick, [](gpointer) -> gboolean { return G_SOURCE_CONTINUE; }, nullptr);
    bool holds = isSo();
    while (!holds && std::chrono::steady_clock::now() < deadline) {
        g_main_context_iteration(nullptr, TRUE);
        holds = isSo();
    }
    g_source_remove(timer);
    EXPECT_TRUE(holds) << "waited in vain for: " << what;
    return holds;
}
