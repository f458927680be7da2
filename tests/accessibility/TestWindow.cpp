// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/accessibility/AccessibilityTest.h"
#include "tests/accessibility/Waiting.h"

namespace {

class AccessibleWindow : public AccessibilityTest {};

TEST_F(AccessibleWindow, BurnButtonIsFoundByItsName) {
    start();
    EXPECT_FALSE(button("Burn").isNull());
}

} // namespace
