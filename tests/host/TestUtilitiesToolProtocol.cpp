// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/VXUtilitiesTool.h"

#include <QObject>

#include <gtest/gtest.h>

#include <string>
#include <type_traits>

namespace {

// Tools are built apart from the host: what is agreed on by value cannot change unnoticed.
TEST(UtilitiesToolProtocol, InterfaceNameAndVersionGoTogether) {
    EXPECT_EQ(std::string(VXUtilitiesToolFactory_iid),
              "crate.UtilitiesToolFactory/" + std::to_string(utilitiesToolProtocolVersion));
    EXPECT_STREQ(qobject_interface_iid<VXUtilitiesToolFactory *>(), VXUtilitiesToolFactory_iid);
}

TEST(UtilitiesToolProtocol, DragTypeKeepsItsName) {
    EXPECT_STREQ(songListMimeType, "CrateSongItemType");
}

TEST(UtilitiesToolProtocol, ObjectsAreDeletedThroughTheirInterface) {
    EXPECT_TRUE(std::has_virtual_destructor_v<VXUtilitiesTool>);
    EXPECT_TRUE(std::has_virtual_destructor_v<VXUtilitiesToolFactory>);
    EXPECT_TRUE(std::has_virtual_destructor_v<VXUtilitiesToolContext>);
    EXPECT_TRUE(std::has_virtual_destructor_v<VXUserDataCollector>);
    EXPECT_FALSE(std::is_copy_constructible_v<VXUtilitiesTool>);
}

} // namespace
