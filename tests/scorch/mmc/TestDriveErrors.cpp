// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/mmc/DriveErrors.h"

#include "scorch/mmc/DeviceHolder.h"
#include "scorch/support/FileDescriptor.h"
#include "tests/scorch/mmc/HolderProcess.h"
#include "tests/support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <cerrno>
#include <fcntl.h>
#include <fstream>
#include <sys/stat.h>
#include <system_error>
#include <tuple>
#include <unistd.h>

using namespace scorch;
using testing::AllOf;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;
using Code = ScorchErrorCode;

namespace {

ScorchError errorOf(const Sense &sense, std::optional<std::int64_t> sector = {}) {
    return senseError(sense, {.driveName = "ACME", .node = "/dev/sr0", .sector = sector}, "WRITE");
}

MmcError systemError(MmcError::Kind kind, int error) {
    return {.kind = kind, .sense = {}, .systemError = error, .command = "open"};
}

} // namespace

TEST(DriveErrors, EachSenseHasItsCategoryAndItsAdvice) {
    const std::vector<std::tuple<Sense, Code, std::string>> rows = {
        {{2, 0x3A, 0x01}, Code::noDisc, "Insert a blank CD"},
        {{2, 0x3A, 0x02}, Code::noDisc, "tray of the drive “ACME” is open"},
        {{2, 0x04, 0x01}, Code::driveSilent, "does not become ready"},
        {{2, 0x30, 0x00}, Code::discNotSuitable, "cannot be recorded"},
        {{3, 0x73, 0x03}, Code::writeFailed, "could not adjust its laser"},
        {{3, 0x73, 0x02}, Code::writeFailed, "could not adjust its laser"},
        {{3, 0x0C, 0x09}, Code::writeFailed, "had to wait for data"},
        {{3, 0x0C, 0x00}, Code::writeFailed, "try again with a new one"},
        {{3, 0x11, 0x05}, Code::driveFailed, "could not be read"},
        {{4, 0x44, 0x00}, Code::driveFailed, "fault of its own"},
        {{5, 0x30, 0x05}, Code::discNotSuitable, "cannot be recorded"},
        {{5, 0x72, 0x03}, Code::writeFailed, "could not close the disc"},
        {{5, 0x63, 0x00}, Code::doesNotFit, "less room than it said"},
        {{5, 0x53, 0x02}, Code::driveBusy, "locked it in"},
        {{4, 0x53, 0x00}, Code::driveFailed, "could not open its tray"},
        {{5, 0x26, 0x00}, Code::driveFailed, "refuses to write"},
        {{5, 0x20, 0x00}, Code::driveFailed, "refuses to write"},
        {{6, 0x28, 0x00}, Code::noDisc, "taken out"},
        {{6, 0x29, 0x00}, Code::driveFailed, "connection"},
        {{7, 0x27, 0x00}, Code::discNotSuitable, "protected against writing"},
        {{0xB, 0x08, 0x01}, Code::driveFailed, "connection"},
        {{0xE, 0x12, 0x34}, Code::driveFailed, "E/12/34"},
    };
    for (const auto &[sense, category, words] : rows) {
        const ScorchError error = errorOf(sense);
        EXPECT_EQ(error.category(), category) << senseText(sense);
        EXPECT_THAT(error.localizedDescription(), AllOf(HasSubstr(words), HasSubstr("ACME")));
        EXPECT_EQ(error.detail(), "sense " + senseText(sense) + ": WRITE");
    }
}

TEST(DriveErrors, AWriteErrorNamesItsSectorWhereItIsKnown) {
    EXPECT_THAT(errorOf({3, 0x0C, 0}, 4711).localizedDescription(), HasSubstr("sector 4711"));
    EXPECT_THAT(errorOf({3, 0x0C, 0}).localizedDescription(), Not(HasSubstr("sector")));
    // The laser was not adjusted at any sector.
    EXPECT_THAT(errorOf({3, 0x73, 3}, 4711).localizedDescription(), Not(HasSubstr("4711")));
}

TEST(DriveErrors, WhatTheSystemSaysHasItsWordsToo) {
    const DriveErrorContext context{.driveName = "ACME", .node = "/no/such/node", .sector = {}};
    const auto error = [&context](MmcError::Kind kind, int number) {
        return driveError(systemError(kind, number), context);
    };
    EXPECT_EQ(error(MmcError::Kind::gone, ENODEV).category(), Code::driveGone);
    EXPECT_EQ(error(MmcError::Kind::timedOut, ETIMEDOUT).category(), Code::driveSilent);
    EXPECT_EQ(error(MmcError::Kind::busy, EBUSY).category(), Code::driveBusy);
    EXPECT_EQ(error(MmcError::Kind::noPermission, EACCES).category(), Code::driveNotAllowed);
    EXPECT_THAT(error(MmcError::Kind::other, EIO).localizedDescription(),
                HasSubstr("Input/output error"));
    EXPECT_THAT(error(MmcError::Kind::gone, ENODEV).detail(), StartsWith("open: "));
}

TEST(DriveErrors, AnEjectionThatFailsIsTheTraysUnlessMoreIsKnown) {
    const DriveErrorContext context{.driveName = "ACME", .node = "/no/such/node", .sector = {}};
    EXPECT_THAT(ejectError(systemError(MmcError::Kind::other, EIO), context).localizedDescription(),
                HasSubstr("“ACME” could not open its tray"));
    EXPECT_EQ(ejectError(systemError(MmcError::Kind::busy, EBUSY), context).category(),
              Code::driveBusy);
    EXPECT_THAT(
        ejectError(systemError(MmcError::Kind::other, ENOSYS), context).localizedDescription(),
        HasSubstr("(" + std::generic_category().message(ENOSYS) + ")"));
}

TEST(DriveErrors, WhoMayNotUseADriveReadsItsGroup) {
    const TemporaryFolder folder;
    const auto node = folder.path() / "sr0";
    std::ofstream(node).put(' ');
    constexpr gid_t cdrom = 24; // Debian's.
    if (::chown(node.c_str(), static_cast<uid_t>(-1), cdrom) != 0) {
        GTEST_SKIP() << "only root gives a file away";
    }
    const ScorchError error = driveError(systemError(MmcError::Kind::noPermission, EACCES),
                                         {.driveName = "ACME", .node = node, .sector = {}});
    EXPECT_THAT(error.localizedDescription(),
                AllOf(HasSubstr("“ACME”"), HasSubstr("the group “cdrom”")));
}

TEST(DriveErrors, AGroupWithoutANameIsItsNumber) {
    const TemporaryFolder folder;
    const auto node = folder.path() / "sr0";
    std::ofstream(node).put(' ');
    if (::chown(node.c_str(), static_cast<uid_t>(-1), 54'321) != 0) {
        GTEST_SKIP() << "only root gives a file away";
    }
    EXPECT_EQ(groupOf(node), "54321");
    EXPECT_EQ(groupOf("/no/such/node"), "");
}

TEST(DriveErrors, WhoHoldsADriveIsNamed) {
    const TemporaryFolder folder;
    const auto node = folder.path() / "sr0";
    std::ofstream(node).put(' ');
    EXPECT_EQ(holderOf(node), "");
    const FileDescriptor own(::open(node.c_str(), O_RDONLY | O_CLOEXEC));
    EXPECT_EQ(holderOf(node), "") << "this program does not stand in its own way";
    const HolderProcess other;
    const std::string holder = holderOf(node);
    EXPECT_THAT(holder, HasSubstr("(" + other.number() + ")"));
    EXPECT_THAT(driveError(systemError(MmcError::Kind::busy, EBUSY),
                           {.driveName = "ACME", .node = node, .sector = {}})
                    .localizedDescription(),
                HasSubstr("The program " + holder +
                          " uses the drive “ACME”. Wait until it has finished, or close it"));
}
