// SPDX-License-Identifier: GPL-2.0-or-later
#include "crate/Settings.h"

#include <gtest/gtest.h>

namespace {

namespace settings = crate::settings;

TEST(Settings, MusicFolderIsTheDesktopsUntilOneIsChosen) {
    EXPECT_EQ(settings::musicFolder().filename(), "Music");
    settings::setMusicFolder("/songs");
    EXPECT_EQ(settings::musicFolder(), "/songs");
}

TEST(Settings, MusicFolderKeepsItsBytes) {
    settings::setMusicFolder("/caf\xe9/\xff%");
    EXPECT_EQ(settings::musicFolder().native(), "/caf\xe9/\xff%");
}

TEST(Settings, WindowComesBack) {
    settings::setWindowState("geometry", QByteArray("\0\1\2", 3));
    EXPECT_EQ(settings::windowGeometry(), "geometry");
    EXPECT_EQ(settings::songListHeader(), QByteArray("\0\1\2", 3));
}

} // namespace
