// SPDX-License-Identifier: GPL-2.0-or-later
#include "crate/ToolLoader.h"

#include "tests/crate/support/LogLines.h"
#include "tests/support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <fstream>
#include <map>

namespace {

using crate::loadTools;
using crate::ToolEntry;
using crate::ToolState;

class NoContext : public VXUtilitiesToolContext {
public:
    VXUserDataCollector *userDataCollector() override { return nullptr; }
};

class ToolLoader : public testing::Test {
protected:
    const ToolEntry &entry(const char *file) const {
        const auto found =
            std::find_if(entries_.begin(), entries_.end(),
                         [file](const ToolEntry &each) { return each.file.stem() == file; });
        EXPECT_NE(found, entries_.end()) << file;
        return *found;
    }

    static bool isCodeLoaded(const char *file) {
        return qEnvironmentVariableIsSet(("CRATE_TEST_LOADED_" + std::string(file)).c_str());
    }

    LogLines lines_;
    NoContext context_;
    std::vector<ToolEntry> entries_ = loadTools(CRATE_TEST_TOOLS_DIR, &context_);
};

TEST_F(ToolLoader, GoodToolIsLoaded) {
    const ToolEntry &good = entry("a_good");
    EXPECT_EQ(good.state, ToolState::loaded);
    EXPECT_EQ(good.id, QStringLiteral("good"));
    EXPECT_EQ(good.version, QStringLiteral("1.2"));
    EXPECT_TRUE(good.error.isEmpty());
    ASSERT_NE(good.tool, nullptr);
    EXPECT_EQ(good.tool->toolName(), QStringLiteral("Good Tool"));
    EXPECT_TRUE(isCodeLoaded("a_good"));
}

TEST_F(ToolLoader, EachWrongLibraryHasItsStateAndItsReason) {
    const std::map<const char *, ToolState> expected{
        {"b_same_id", ToolState::duplicate},
        {"c_other_iid", ToolState::otherInterface},
        {"d_other_protocol", ToolState::otherProtocol},
        {"e_text_protocol", ToolState::otherProtocol},
        {"f_no_id", ToolState::badMetadata},
        {"g_no_version", ToolState::badMetadata},
        {"h_unresolved", ToolState::notLoadable},
        {"i_other_root", ToolState::badRootObject},
        {"j_null_tool", ToolState::badRootObject},
        {"k_no_metadata", ToolState::notAPlugin},
        {"l_text", ToolState::notAPlugin},
        {"m_empty", ToolState::notAPlugin},
    };
    EXPECT_EQ(entries_.size(), expected.size() + 1);
    for (const auto &[file, state] : expected) {
        EXPECT_EQ(entry(file).state, state) << file;
        EXPECT_FALSE(entry(file).error.isEmpty()) << file;
        EXPECT_EQ(entry(file).tool, nullptr) << file;
    }
}

TEST_F(ToolLoader, CodeIsNotLoadedBeforeTheMetadataIsRight) {
    for (const char *file : {"b_same_id", "c_other_iid", "d_other_protocol", "e_text_protocol",
                             "f_no_id", "g_no_version"}) {
        EXPECT_FALSE(isCodeLoaded(file)) << file;
    }
}

TEST_F(ToolLoader, ReasonOfTheSystemIsPassedOn) {
    EXPECT_THAT(entry("h_unresolved").error.toStdString(),
                testing::HasSubstr("functionThatNobodyHas"));
}

TEST_F(ToolLoader, LibrariesAreTakenInTheOrderOfTheirNames) {
    EXPECT_TRUE(
        std::is_sorted(entries_.begin(), entries_.end(),
                       [](const ToolEntry &a, const ToolEntry &b) { return a.file < b.file; }));
}

TEST_F(ToolLoader, EachRefusalIsLogged) {
    EXPECT_EQ(LogLines::lines().filter(QStringLiteral("is not used")).size(), 12);
}

TEST_F(ToolLoader, LoadedCodeStaysWhenTheToolIsGone) {
    entries_.clear();
    std::ifstream maps("/proc/self/maps");
    const std::string mapped((std::istreambuf_iterator<char>(maps)),
                             std::istreambuf_iterator<char>());
    EXPECT_THAT(mapped, testing::HasSubstr("a_good.so"));
}

TEST(ToolFolder, IsFoundFromTheProgramsFolder) {
    EXPECT_EQ(crate::toolFolderFor("/opt/x/bin"), "/opt/x/lib/crate/tools");
}

TEST(ToolFolder, OneThatDoesNotExistHasNoTools) {
    NoContext context;
    EXPECT_TRUE(loadTools("/nowhere/tools", &context).empty());
}

TEST(ToolFolder, OneThatIsRefusedDoesNotKeepTheNextOneOut) {
    const LogLines lines;
    const TemporaryFolder folder;
    NoContext context;
    std::filesystem::copy(std::filesystem::path(CRATE_TEST_TOOLS_DIR) / "b_same_id.so",
                          folder / "z.so");
    folder.write("a.so", "broken");
    const std::vector<ToolEntry> entries = loadTools(folder.path(), &context);
    ASSERT_EQ(entries.size(), 2U);
    EXPECT_EQ(entries[0].state, ToolState::notAPlugin);
    EXPECT_EQ(entries[1].state, ToolState::loaded);
}

} // namespace
