// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/support/Text.h"

#include "engine/ScorchHooks.h"

#include <gtest/gtest.h>

using scorch::localized;

namespace {

class LocalizedText : public testing::Test {
protected:
    void TearDown() override { ScorchHooks::shared().localizedText = nullptr; }
};

} // namespace

TEST_F(LocalizedText, KeyIsTheTextWithoutAHook) {
    EXPECT_EQ(localized("No drive."), "No drive.");
}

TEST_F(LocalizedText, PlaceholdersAreFilledInOrder) {
    EXPECT_EQ(localized("%@ of %@", {"1", "2"}), "1 of 2");
}

TEST_F(LocalizedText, PlaceholderInAValueStays) {
    EXPECT_EQ(localized("%@ and %@", {"%@", "b"}), "%@ and b");
}

TEST_F(LocalizedText, SurplusValuesAndPlaceholdersAreHarmless) {
    EXPECT_EQ(localized("%@", {"a", "b"}), "a");
    EXPECT_EQ(localized("%@ %@", {"a"}), "a %@");
}

TEST_F(LocalizedText, HookGivesTheFormat) {
    ScorchHooks::shared().localizedText = [](std::string_view key) {
        return key == "%@ is gone" ? std::string("fort: %@") : std::string(key);
    };
    EXPECT_EQ(localized("%@ is gone", {"a"}), "fort: a");
}
