// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/mmc/DeviceHolder.h"

#include "scorch/support/FileDescriptor.h"
#include "tests/scorch/mmc/HolderProcess.h"
#include "tests/support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <fcntl.h>
#include <fstream>
#include <optional>
#include <string>

using namespace scorch;
using testing::HasSubstr;

TEST(DeviceHolder, WhoWritesToADriveIsToldFromWhoReads) {
    const TemporaryFolder folder;
    const auto node = folder.path() / "sr0";
    std::ofstream(node).put(' ');
    std::optional<FileDescriptor> own(::open(node.c_str(), O_RDONLY | O_CLOEXEC));
    const HolderProcess reader;
    EXPECT_EQ(writerOf(node), "");
    own.emplace(::open(node.c_str(), O_RDWR | O_CLOEXEC));
    const HolderProcess writer;
    EXPECT_THAT(writerOf(node), HasSubstr("(" + writer.number() + ")"));
    EXPECT_THAT(holderOf(node), HasSubstr("(" + writer.number() + ")")) << "not the reader";
}
