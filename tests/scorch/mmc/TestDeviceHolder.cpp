// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/mmc/DeviceHolder.h"

#include "scorch/support/FileDescriptor.h"
#include "tests/support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <fcntl.h>
#include <fstream>
#include <optional>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

using namespace scorch;
using testing::HasSubstr;

namespace {

/// A child that has what this program has open, until it goes.
class Child {
public:
    Child() {
        EXPECT_EQ(::pipe(ready_) | ::pipe(done_), 0);
        process_ = ::fork();
        char byte = 0;
        if (process_ == 0) {
            ::close(done_[1]);
            [[maybe_unused]] const auto told = ::write(ready_[1], &byte, 1);
            [[maybe_unused]] const auto heard = ::read(done_[0], &byte, 1);
            ::_exit(0);
        }
        EXPECT_EQ(::read(ready_[0], &byte, 1), 1);
    }
    ~Child() {
        for (const int descriptor : {ready_[0], ready_[1], done_[0], done_[1]}) {
            ::close(descriptor);
        }
        ::waitpid(process_, nullptr, 0);
    }
    Child(const Child &) = delete;
    Child &operator=(const Child &) = delete;

    std::string number() const { return std::to_string(process_); }

private:
    int ready_[2] = {};
    int done_[2] = {};
    pid_t process_ = -1;
};

} // namespace

TEST(DeviceHolder, WhoWritesToADriveIsToldFromWhoReads) {
    const TemporaryFolder folder;
    const auto node = folder.path() / "sr0";
    std::ofstream(node).put(' ');
    std::optional<FileDescriptor> own(::open(node.c_str(), O_RDONLY | O_CLOEXEC));
    const Child reader;
    EXPECT_EQ(writerOf(node), "");
    own.emplace(::open(node.c_str(), O_RDWR | O_CLOEXEC));
    const Child writer;
    EXPECT_THAT(writerOf(node), HasSubstr("(" + writer.number() + ")"));
    EXPECT_THAT(holderOf(node), HasSubstr("(" + writer.number() + ")")) << "not the reader";
}
