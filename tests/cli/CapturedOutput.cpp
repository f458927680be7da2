// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/cli/CapturedOutput.h"

#include <gtest/gtest.h>

#include <sys/mman.h>
#include <unistd.h>

CapturedOutput::CapturedOutput()
    : descriptor_(memfd_create("output", MFD_CLOEXEC)), output_(descriptor_) {
    EXPECT_GE(descriptor_, 0);
}

CapturedOutput::~CapturedOutput() {
    close(descriptor_);
}

std::string CapturedOutput::text() const {
    std::string text(static_cast<std::size_t>(lseek(descriptor_, 0, SEEK_CUR)), '\0');
    EXPECT_EQ(pread(descriptor_, text.data(), text.size(), 0), static_cast<ssize_t>(text.size()));
    return text;
}
