// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/support/HeldImages.h"

#include <gtest/gtest.h>

#include <fstream>

HeldImages::HeldImages(const std::filesystem::path &folder)
    : gate_(folder.string() + ".held"),
      environment_{
          "LD_PRELOAD=" HELD_IMAGES_LIBRARY,
          "HELD_IMAGES=" + folder.string(),
          // The library has none of the sanitizer's runtime.
          "ASAN_OPTIONS=verify_asan_link_order=0",
      } {
    EXPECT_TRUE(std::ofstream(gate_).good()) << gate_;
}

HeldImages::~HeldImages() {
    release();
}

void HeldImages::release() const {
    std::error_code ignored; // It may be gone already.
    std::filesystem::remove(gate_, ignored);
}
