// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/scorch/iso/IsoTestSupport.h"

#include "tests/support/CommandResult.h"

#include <gtest/gtest.h>

#include <fstream>
#include <span>
#include <sstream>
#include <sys/wait.h>
#include <unistd.h>

namespace isotest {

scorch::IsoScan scanned(const std::filesystem::path &path) {
    scorch::Outcome<scorch::IsoScan> scan = scorch::scanPath(path, {}, {});
    if (!scan || !scan->node) {
        ADD_FAILURE() << "not accepted: " << path;
        return {std::make_shared<scorch::IsoNode>(), {}, 0, 0};
    }
    return std::move(*scan);
}

std::vector<scorch::IsoRootEntry> entriesOf(const std::vector<std::filesystem::path> &paths) {
    std::vector<scorch::IsoRootEntry> entries;
    for (const std::filesystem::path &path : paths) {
        const scorch::IsoNodeRef node = scanned(path).node;
        entries.push_back({node, node->name});
    }
    return entries;
}

std::uint64_t predictedSize(const std::vector<scorch::IsoRootEntry> &entries) {
    const scorch::Outcome<std::uint64_t> size = scorch::isoImageSize(entries, {});
    EXPECT_TRUE(size.ok());
    return size ? *size : 0;
}

std::unique_ptr<scorch::IsoImage> laidOut(const std::vector<scorch::IsoRootEntry> &entries,
                                          const std::string &volumeName) {
    auto image = scorch::IsoImage::create(entries, volumeName, {});
    if (!image) {
        ADD_FAILURE() << errorOf(image).localizedDescription() << " " << errorOf(image).detail();
        return nullptr;
    }
    return std::move(*image);
}

Streamed streamed(scorch::SectorSource &source, std::size_t pieceBytes) {
    Streamed result;
    std::vector<std::byte> piece(pieceBytes);
    for (;;) {
        const scorch::Outcome<std::size_t> count = source.read(piece, {});
        if (!count) {
            result.failure = count.error();
            return result;
        }
        result.bytes.append(reinterpret_cast<const char *>(piece.data()), *count);
        if (*count < piece.size()) {
            return result;
        }
    }
}

void writeImage(const std::vector<scorch::IsoRootEntry> &entries, const std::filesystem::path &to,
                const std::string &volumeName) {
    const auto image = laidOut(entries, volumeName);
    ASSERT_TRUE(image);
    const Streamed stream = streamed(*image->openSource());
    ASSERT_FALSE(stream.failure);
    ASSERT_EQ(stream.bytes.size(), image->size());
    std::ofstream file(to, std::ios::binary);
    file.write(stream.bytes.data(), static_cast<std::streamsize>(stream.bytes.size()));
    file.close();
    ASSERT_TRUE(file.good());
}

void extract(const std::filesystem::path &image, const std::filesystem::path &to, Names names) {
    const CommandResult result =
        runCommand({"xorriso", "-local_charset", "UTF-8", "-read_fs",
                    names == Names::joliet ? "norock" : "any", "-osirrox", "on", "-indev",
                    image.string(), "-extract", "/", to.string()});
    EXPECT_EQ(result.exitCode, 0) << result.output;
}

std::vector<Extent> extentsOf(const std::filesystem::path &image, const std::string &below) {
    // "File data lba:  0 ,      217 ,        1 ,        5 , '/in/name'"
    static const std::string mark = "File data lba:";
    const CommandResult result = runCommand(
        {"xorriso", "-indev", image.string(), "-find", below, "-type", "f", "-exec", "report_lba"});
    std::vector<Extent> extents;
    std::istringstream lines(result.output);
    for (std::string line; std::getline(lines, line);) {
        if (line.compare(0, mark.size(), mark) != 0) {
            continue;
        }
        std::istringstream fields(line.substr(mark.size()));
        Extent extent;
        int number = 0;
        char comma = 0;
        fields >> number >> comma >> extent.first >> comma >> extent.blocks >> comma >>
            extent.bytes;
        EXPECT_TRUE(fields.good()) << line;
        extent.path = line.substr(line.find('\'') + 1);
        extent.path.pop_back();
        extents.push_back(std::move(extent));
    }
    return extents;
}

void expectSameTree(const std::filesystem::path &expected, const std::filesystem::path &actual) {
    const CommandResult result = runCommand({"diff", "-r", expected.string(), actual.string()});
    EXPECT_EQ(result.exitCode, 0) << result.output;
}

bool asOrdinaryUser(const std::function<bool()> &check) {
    if (geteuid() != 0) {
        return check();
    }
    const pid_t child = fork();
    if (child == 0) {
        constexpr uid_t nobody = 65534;
        const bool dropped = setgid(nobody) == 0 && setuid(nobody) == 0;
        _exit(dropped && check() ? 0 : 1);
    }
    int status = -1;
    return child > 0 && waitpid(child, &status, 0) == child && WIFEXITED(status) &&
           WEXITSTATUS(status) == 0;
}

} // namespace isotest
