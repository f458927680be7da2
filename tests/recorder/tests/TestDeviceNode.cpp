// SPDX-License-Identifier: GPL-2.0-or-later
// A program's view of the device: this program has the recorder under it (see DeviceMain.cpp).
#include "tests/recorder/DriveScene.h"
#include "tests/recorder/tests/Host.h"

#include <gtest/gtest.h>

#include <array>
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <linux/cdrom.h>
#include <linux/fs.h>
#include <scsi/sg.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <sys/uio.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace recorder;

namespace {

/// A drive for each test, also where all run in one process.
int nextNumber() {
    static int number = 0;
    return number++;
}

class DeviceNode : public testing::Test {
protected:
    DeviceNode() { scene.makeDisc(blankDisc(DiscKind::CdR)); }
    ~DeviceNode() override {
        for (const int descriptor : open_) {
            close(descriptor);
        }
    }

    int openDrive(int flags = O_RDWR | O_NONBLOCK) {
        const int descriptor = open(device.c_str(), flags);
        if (descriptor >= 0) {
            open_.push_back(descriptor);
        }
        return descriptor;
    }

    void insertData(const Bytes &data) const {
        makeDataDisc(scene.folder() / "disc", DiscKind::CdRom, data);
    }

    const std::string name = "sr" + std::to_string(nextNumber());
    const std::string device = "/dev/" + name;
    DriveScene scene{std::getenv("CD_RECORDER"), name};

private:
    std::vector<int> open_;
};

/// An INQUIRY by SG_IO: 0, or the error number.
int inquire(int descriptor, ByteSpan answer, int interface = 'S') {
    std::array<unsigned char, 6> cdb = {0x12, 0, 0, 0, 36, 0};
    std::array<unsigned char, 32> senseData{};
    sg_io_hdr header{};
    header.interface_id = interface;
    header.dxfer_direction = SG_DXFER_FROM_DEV;
    header.cmd_len = cdb.size();
    header.cmdp = cdb.data();
    header.sbp = senseData.data();
    header.mx_sb_len = senseData.size();
    header.dxferp = answer.data();
    header.dxfer_len = static_cast<unsigned>(answer.size());
    header.timeout = 1000;
    return ioctl(descriptor, SG_IO, &header) == 0 ? header.host_status : errno;
}

int inquire(int descriptor) {
    std::array<Byte, 36> answer{};
    return inquire(descriptor, answer);
}

} // namespace

TEST_F(DeviceNode, LooksLikeABlockDevice) {
    struct stat status {};
    ASSERT_EQ(stat(device.c_str(), &status), 0);
    EXPECT_TRUE(S_ISBLK(status.st_mode));
    EXPECT_EQ(major(status.st_rdev), 11U);
    ASSERT_EQ(fstat(openDrive(), &status), 0);
    EXPECT_TRUE(S_ISBLK(status.st_mode));
    struct statx extended {};
    ASSERT_EQ(statx(AT_FDCWD, device.c_str(), 0, STATX_ALL, &extended), 0);
    EXPECT_EQ(extended.stx_rdev_major, 11U);
    EXPECT_EQ(extended.stx_dev_minor, minor(status.st_dev));
    EXPECT_EQ(extended.stx_ino, status.st_ino);
    EXPECT_EQ(access(device.c_str(), R_OK | W_OK), 0);
}

TEST_F(DeviceNode, IsAbsentWhereThereIsNoFolderForIt) {
    struct stat status {};
    EXPECT_EQ(stat("/dev/sr31", &status), -1);
    EXPECT_EQ(errno, ENOENT);
    EXPECT_EQ(open("/dev/sr31", O_RDONLY | O_NONBLOCK), -1);
    EXPECT_EQ(errno, ENOENT);
    DriveScene later(std::getenv("CD_RECORDER"), "sr31");
    EXPECT_EQ(stat("/dev/sr31", &status), 0);
}

TEST_F(DeviceNode, HasLinksThatLeadToIt) {
    const DriveScene first(std::getenv("CD_RECORDER"), "sr0");
    struct stat status {};
    ASSERT_EQ(lstat("/dev/cdrom", &status), 0);
    EXPECT_TRUE(S_ISLNK(status.st_mode));
    ASSERT_EQ(stat("/dev/cdrom", &status), 0);
    EXPECT_TRUE(S_ISBLK(status.st_mode));
    std::array<char, PATH_MAX> target{};
    EXPECT_EQ(std::string(realpath("/dev/cdrom", target.data())), "/dev/sr0");
    EXPECT_EQ(readlink("/dev/scd0", target.data(), target.size()), 3);
}

TEST_F(DeviceNode, OtherFilesAreLeftAlone) {
    const auto path = scene.folder() / "other";
    std::ofstream(path) << "text";
    const int descriptor = open(path.c_str(), O_RDONLY);
    std::array<char, 8> text{};
    EXPECT_EQ(read(descriptor, text.data(), text.size()), 4);
    EXPECT_EQ(inquire(descriptor), ENOTTY);
    struct stat status {};
    ASSERT_EQ(fstat(descriptor, &status), 0);
    EXPECT_TRUE(S_ISREG(status.st_mode));
    close(descriptor);
}

TEST_F(DeviceNode, ExclusiveOpenShutsOthersOutUntilTheLastDuplicateIsClosed) {
    const int first = openDrive(O_RDWR | O_NONBLOCK | O_EXCL);
    ASSERT_GE(first, 0);
    const int duplicate = dup(first);
    EXPECT_EQ(openDrive(O_RDWR | O_NONBLOCK | O_EXCL), -1);
    EXPECT_EQ(errno, EBUSY);
    EXPECT_GE(openDrive(O_RDONLY | O_NONBLOCK), 0);
    close(first);
    EXPECT_EQ(openDrive(O_RDWR | O_NONBLOCK | O_EXCL), -1);
    EXPECT_EQ(inquire(duplicate), 0);
    close(duplicate);
    EXPECT_GE(openDrive(O_RDWR | O_NONBLOCK | O_EXCL), 0);
}

TEST_F(DeviceNode, BusyDriveRefusesOnlyWhoWantsItAlone) {
    scene.control("busy\n");
    EXPECT_EQ(openDrive(O_RDWR | O_NONBLOCK | O_EXCL), -1);
    EXPECT_EQ(errno, EBUSY);
    EXPECT_GE(openDrive(), 0);
}

TEST_F(DeviceNode, ExclusiveOpenHoldsAgainstAnotherProcess) {
    ASSERT_GE(openDrive(O_RDWR | O_NONBLOCK | O_EXCL), 0);
    const pid_t child = fork();
    if (child == 0) {
        _exit(open(device.c_str(), O_RDWR | O_NONBLOCK | O_EXCL) == -1 ? errno : 0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_EQ(WEXITSTATUS(status), EBUSY);
}

TEST_F(DeviceNode, IsNotForgottenWhenAChildOfVforkClosesIt) {
    const int descriptor = openDrive();
    const pid_t child = vfork(); // NOLINT: it is what is to be tested.
    if (child == 0) {
        close(descriptor); // NOLINT(clang-analyzer-unix.Vfork)
        _exit(0);
    }
    waitpid(child, nullptr, 0);
    EXPECT_EQ(inquire(descriptor), 0);
}

TEST_F(DeviceNode, IsKnownByADescriptorThatWasDuplicated) {
    const int duplicate = fcntl(openDrive(), F_DUPFD, 100);
    EXPECT_EQ(inquire(duplicate), 0);
    EXPECT_EQ(inquire(dup2(duplicate, 101)), 0);
    close(duplicate);
    close(101);
}

TEST_F(DeviceNode, CanBeLockedForWriting) {
    struct flock lock {};
    lock.l_type = F_WRLCK;
    lock.l_whence = SEEK_SET;
    EXPECT_EQ(fcntl(openDrive(O_RDWR | O_NONBLOCK | O_EXCL), F_SETLK, &lock), 0);
}

TEST_F(DeviceNode, WithoutNonblockNeedsADiscThatCanBeRead) {
    insertData(pattern(kUserDataBytes, 10));
    scene.control("tray open\n");
    EXPECT_GE(openDrive(O_RDONLY), 0); // Which takes the tray in.
    scene.control("disc none\n");
    EXPECT_EQ(openDrive(O_RDONLY), -1);
    EXPECT_EQ(errno, ENOMEDIUM);
    EXPECT_EQ(openDrive(O_RDWR), -1);
    EXPECT_EQ(errno, EROFS);
}

TEST_F(DeviceNode, UnpluggedGivesEnodevOnOpenDescriptors) {
    const int descriptor = openDrive();
    scene.control("vanished\n");
    EXPECT_EQ(inquire(descriptor), ENODEV);
    EXPECT_EQ(ioctl(descriptor, CDROM_DRIVE_STATUS, 0), -1);
    EXPECT_EQ(errno, ENODEV);
    scene.control("");
    EXPECT_EQ(inquire(descriptor), 0);
}

TEST_F(DeviceNode, SilentDriveEndsInATimeOut) {
    const int descriptor = openDrive();
    scene.control("silent 1\n");
    EXPECT_EQ(inquire(descriptor), 3); // DID_TIME_OUT.
}

TEST_F(DeviceNode, WrongInterfaceOfScsiIsRefused) {
    std::array<Byte, 36> answer{};
    EXPECT_EQ(inquire(openDrive(), answer, 0), EINVAL);
}

TEST_F(DeviceNode, IsReadAtAnyByteAndEndsAtItsSize) {
    const Bytes data = pattern(kUserDataBytes, 100);
    insertData(data);
    const int descriptor = openDrive(O_RDONLY);
    EXPECT_EQ(lseek(descriptor, 0, SEEK_END), 100 * 2048);
    std::uint64_t size = 0;
    EXPECT_EQ(ioctl(descriptor, BLKGETSIZE64, &size), 0);
    EXPECT_EQ(size, 100U * 2048);
    Bytes part(5000);
    EXPECT_EQ(pread(descriptor, part.data(), part.size(), 3001), 5000);
    EXPECT_EQ(part, Bytes(data.begin() + 3001, data.begin() + 8001));
    lseek(descriptor, -1000, SEEK_END);
    EXPECT_EQ(read(descriptor, part.data(), part.size()), 1000);
    EXPECT_EQ(read(descriptor, part.data(), part.size()), 0);
}

TEST_F(DeviceNode, IsReadAsAStream) {
    const Bytes data = pattern(kUserDataBytes, 40);
    insertData(data);
    FILE *stream = fopen(device.c_str(), "r");
    ASSERT_NE(stream, nullptr);
    EXPECT_EQ(inquire(fileno(stream)), 0);
    Bytes part(3000);
    EXPECT_EQ(fseek(stream, 5000, SEEK_SET), 0);
    EXPECT_EQ(fread(part.data(), 1, part.size(), stream), part.size());
    EXPECT_EQ(part, Bytes(data.begin() + 5000, data.begin() + 8000));
    fclose(stream);
}

TEST_F(DeviceNode, AnswersTheCdRomIoctls) {
    insertData(pattern(kUserDataBytes, 40));
    const int descriptor = openDrive();
    EXPECT_EQ(ioctl(descriptor, CDROM_DRIVE_STATUS, CDSL_CURRENT), CDS_DISC_OK);
    EXPECT_EQ(ioctl(descriptor, CDROM_DISC_STATUS, 0), CDS_DATA_1);
    cdrom_tochdr header{};
    ASSERT_EQ(ioctl(descriptor, CDROMREADTOCHDR, &header), 0);
    EXPECT_EQ(header.cdth_trk1, 1);
    cdrom_tocentry entry{};
    entry.cdte_track = CDROM_LEADOUT;
    entry.cdte_format = CDROM_LBA;
    ASSERT_EQ(ioctl(descriptor, CDROMREADTOCENTRY, &entry), 0);
    EXPECT_EQ(entry.cdte_addr.lba, 40);
    EXPECT_EQ(ioctl(descriptor, CDROMEJECT, 0), 0);
    EXPECT_EQ(ioctl(descriptor, CDROM_DRIVE_STATUS, CDSL_CURRENT), CDS_TRAY_OPEN);
    EXPECT_EQ(ioctl(descriptor, CDROMCLOSETRAY, 0), 0);
    EXPECT_EQ(ioctl(descriptor, 0x7777, 0), -1);
    EXPECT_EQ(errno, ENOTTY);
}

TEST_F(DeviceNode, PacketsCarryCommandsToo) {
    std::array<unsigned char, 36> answer{};
    cdrom_generic_command packet{};
    packet.cmd[0] = 0x12;
    packet.cmd[4] = 36;
    packet.buffer = answer.data();
    packet.buflen = answer.size();
    packet.data_direction = CGC_DATA_READ;
    ASSERT_EQ(ioctl(openDrive(), CDROM_SEND_PACKET, &packet), 0);
    EXPECT_EQ(answer[0], 5);
}

TEST_F(DeviceNode, ShortAnswerLeavesAResidueAndFillsScatteredBuffers) {
    std::array<Byte, 10> first{};
    std::array<Byte, 200> second{};
    std::array<iovec, 2> places = {{{first.data(), first.size()}, {second.data(), second.size()}}};
    std::array<unsigned char, 6> cdb = {0x12, 0, 0, 0, 36, 0};
    sg_io_hdr header{};
    header.interface_id = 'S';
    header.dxfer_direction = SG_DXFER_TO_FROM_DEV;
    header.cmd_len = cdb.size();
    header.cmdp = cdb.data();
    header.dxferp = places.data();
    header.iovec_count = 2;
    header.dxfer_len = 210;
    ASSERT_EQ(ioctl(openDrive(), SG_IO, &header), 0);
    EXPECT_EQ(header.resid, 210 - 36);
    EXPECT_EQ(std::string(first.begin() + 8, first.end()), "EX");
    EXPECT_EQ(std::string(second.begin(), second.begin() + 5), "AMPLE");
}

TEST_F(DeviceNode, IsNamedInTheKernelsFiles) {
    std::ifstream info("/proc/sys/dev/cdrom/info");
    const std::string text{std::istreambuf_iterator<char>(info), {}};
    EXPECT_NE(text.find(name), std::string::npos);
    std::ifstream model("/sys/bus/scsi/devices/" + name.substr(2) + ":0:0:0/model");
    std::string product;
    std::getline(model, product);
    EXPECT_EQ(product, "CD-RW RECORDER  ");
}
