// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/accessibility/AccessibleDesktop.h"

#include <memory>

#include <atspi/atspi.h>
#include <gtest/gtest.h>

namespace {

/// Before the first test and not when tests are only listed.
class Desktop : public testing::Environment {
public:
    void SetUp() override {
        desktop_ = std::make_unique<AccessibleDesktop>();
        atspi_init();
    }

private:
    std::unique_ptr<AccessibleDesktop> desktop_; // To the end: the library loses its bus badly.
};

} // namespace

int main(int argc, char *argv[]) {
    testing::InitGoogleTest(&argc, argv);
    testing::AddGlobalTestEnvironment(new Desktop);
    return RUN_ALL_TESTS();
}
