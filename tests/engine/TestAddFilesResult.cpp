// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/AddFilesResult.h"

#include <gtest/gtest.h>

TEST(AddFilesResult, EachReasonHasItsList) {
    const AddFilesResult result({{"locked.m4p", "Locked."}}, {{"a.txt", "No."}, {"b.txt", "No."}});
    ASSERT_EQ(result.valueForKey("protected-files").size(), 1U);
    EXPECT_EQ(result.valueForKey("protected-files")[0].path, "locked.m4p");
    EXPECT_EQ(result.valueForKey("protected-files")[0].reason, "Locked.");
    ASSERT_EQ(result.valueForKey("incompatible-files").size(), 2U);
    EXPECT_EQ(result.valueForKey("incompatible-files")[1].path, "b.txt");
}

TEST(AddFilesResult, OtherKeysHaveNothing) {
    const AddFilesResult result({{"a", ""}}, {{"b", ""}});
    EXPECT_TRUE(result.valueForKey("").empty());
    EXPECT_TRUE(result.valueForKey("files").empty());
    EXPECT_TRUE(AddFilesResult().valueForKey("protected-files").empty());
    EXPECT_TRUE(AddFilesResult().valueForKey("incompatible-files").empty());
}
