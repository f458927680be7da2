// SPDX-License-Identifier: GPL-2.0-or-later
// Data images, read by programs that are not ours.
#include "tests/support/CommandResult.h"
#include "tests/system/Burning.h"

#include <gmock/gmock.h>

#include <random>

namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;

class DataImages : public Burning {
protected:
    /// A tree of files with content that differs from file to file.
    fs::path makeTree() const {
        std::mt19937 random(11); // NOLINT(*-msc51-cpp): the same tree in every run
        const auto noise = [&random](std::size_t bytes) {
            std::string text(bytes, '\0');
            for (char &c : text) {
                c = static_cast<char>(random());
            }
            return text;
        };
        folder.write("tree/empty", "");
        folder.write("tree/one byte", "x");
        folder.write("tree/a sector", noise(2048));
        folder.write("tree/a sector and one", noise(2049));
        folder.write("tree/.hidden", noise(100));
        folder.write("tree/deep/er/and/deep/er/and/deep/er/and/deep/er/file", noise(5000));
        folder.write("tree/日本語の名前.txt", noise(3000));
        folder.write("tree/caf\xE9", noise(10));
        folder.write("tree/" + std::string(250, 'n') + ".txt", noise(10));
        folder.write("tree/large", noise(3'000'001));
        fs::create_directory(folder / "tree/empty folder");
        return folder / "tree";
    }

    /// Takes the whole image apart with another program.
    fs::path extracted(const std::string &name) const {
        fs::path target = folder / "extracted";
        const CommandResult result = runCommand(
            {"xorriso", "-osirrox", "on", "-indev", image(name), "-extract", "/", target});
        EXPECT_EQ(result.exitCode, 0) << result.output;
        return target;
    }
};

} // namespace

TEST_F(DataImages, EveryFileIsOnTheDiscUnderItsName) {
    const fs::path tree = makeTree();
    burn("data", "Tree", {tree});
    const CommandResult difference = runCommand(
        {"diff", "--recursive", "--no-dereference", tree, extracted("Tree.iso") / "tree"});
    EXPECT_EQ(difference.exitCode, 0) << difference.output;
}

TEST_F(DataImages, ChecksumsOfTheDiscAreThoseOfTheSources) {
    const fs::path tree = makeTree();
    burn("data", "Tree", {tree});
    const fs::path copy = extracted("Tree.iso") / "tree";
    const auto sums = [](const fs::path &where) {
        return runCommand({"bash", "-c",
                           "cd \"$0\" && find . -type f -print0 | LC_ALL=C sort -z | "
                           "xargs -0 sha256sum",
                           where})
            .output;
    };
    EXPECT_THAT(sums(tree), HasSubstr("one byte"));
    EXPECT_EQ(sums(tree), sums(copy));
}

TEST_F(DataImages, DescriptorsNameTheVolume) {
    burn("data", "Photos 2024", {folder.write("a.txt", "a")});
    const CommandResult info = runCommand({"isoinfo", "-d", "-i", image("Photos 2024.iso")});
    EXPECT_EQ(info.exitCode, 0) << info.output;
    EXPECT_THAT(info.output, HasSubstr("Volume id: Photos 2024"));
    EXPECT_THAT(info.output, HasSubstr("Joliet with UCS level 3 found"));
    EXPECT_THAT(info.output, HasSubstr("Rock Ridge signatures version 1 found"));
}

TEST_F(DataImages, NamesAreInBothExtensions) {
    burn("data", "Names", {folder.write("日本語.txt", "a"), folder.write("Mixed Case.text", "b")});
    const auto list = [&](const char *extension) {
        return runCommand({"isoinfo", extension, "-f", "-i", image("Names.iso")}).output;
    };
    EXPECT_THAT(list("-R"), HasSubstr("/日本語.txt"));
    EXPECT_THAT(list("-R"), HasSubstr("/Mixed Case.text"));
    // It prints "_" for what its one-byte character sets have not.
    EXPECT_THAT(list("-J"), HasSubstr("/___.txt"));
    EXPECT_THAT(list("-J"), HasSubstr("/Mixed Case.text"));
}

TEST_F(DataImages, JolietNamesAreUnicode) {
    burn("data", "Names", {folder.write("日本語.txt", "a")});
    const std::string image16 = readFile(image("Names.iso"));
    // UCS-2, high byte first.
    EXPECT_NE(image16.find(std::string("\x65\xE5\x67\x2C\x8A\x9E\0.\0t\0x\0t", 14)),
              std::string::npos);
}

TEST_F(DataImages, ItemsOfTheSameNameAreKeptApart) {
    burn("data", "Twice", {folder.write("a/x.txt", "1"), folder.write("b/x.txt", "2")});
    const fs::path root = extracted("Twice.iso");
    EXPECT_EQ(readFile(root / "x.txt"), "1");
    EXPECT_EQ(readFile(root / "x (2).txt"), "2");
}

TEST_F(DataImages, ImageIsPaddedAndWhole) {
    burn("data", "Padded", {folder.write("a.txt", "a")});
    const CommandResult info =
        runCommand({"xorriso", "-indev", image("Padded.iso"), "-pvd_info", "-toc"});
    EXPECT_EQ(info.exitCode, 0) << info.output;
    EXPECT_GE(fs::file_size(image("Padded.iso")), 150U * 2048U);
    EXPECT_EQ(fs::file_size(image("Padded.iso")) % 2048U, 0U);
}

TEST_F(DataImages, FolderIsBurnedWithoutWhatCannotBeRead) {
    folder.write("tree/a.txt", "a");
    fs::create_symlink("nowhere", folder / "tree/dangling");
    fs::create_directory_symlink(".", folder / "tree/loop");
    ScorchProcess scorch(burnArguments("data", "Tree", {folder / "tree"}));
    EXPECT_EQ(scorch.wait(), 0) << scorch.errors();
    EXPECT_THAT(scorch.errors(), HasSubstr("dangling"));
    EXPECT_THAT(scorch.errors(), HasSubstr("left out of the disc"));
    EXPECT_EQ(readFile(extracted("Tree.iso") / "tree/a.txt"), "a");
}
