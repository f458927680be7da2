// SPDX-License-Identifier: GPL-2.0-or-later
#include "CDBurnerPlugin/ResourceLocator.h"
#include "tests/CDBurnerPlugin/views/Picture.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace {

QString textOf(const std::filesystem::path &path) {
    return QString::fromStdString(path.string());
}

class ResourceLocatorTest : public testing::Test {
protected:
    void TearDown() override { ResourceLocator::setFolder({}); }
};

struct PictureSize {
    std::string name;
    int width;
    int height;
};

/// For the tests' names.
void PrintTo(const PictureSize &picture, std::ostream *stream) {
    *stream << picture.name;
}

class ToolPicture : public testing::TestWithParam<PictureSize> {};

TEST_P(ToolPicture, IsThereForOneAndTwoPixelsAPoint) {
    const auto &[name, width, height] = GetParam();
    const ResourceImage image = ResourceLocator::imageNamed(QString::fromStdString(name));
    const QSize size(width, height);
    EXPECT_EQ(image.at1x.size(), size);
    EXPECT_EQ(image.at2x.size(), size * 2);
    EXPECT_EQ(image.at2x.devicePixelRatio(), 2.0);
}

INSTANTIATE_TEST_SUITE_P(
    All, ToolPicture,
    testing::Values(
        PictureSize{"icon_cd_burner", 48, 48}, PictureSize{"icon_audio_cd", 32, 32},
        PictureSize{"icon_data_cd", 32, 32}, PictureSize{"button_normal_delete", 22, 22},
        PictureSize{"button_down_delete", 22, 22}, PictureSize{"image_warning", 16, 16},
        PictureSize{"image_drop_target", 128, 128}, PictureSize{"table_bgcolor", 8, 8},
        PictureSize{"popup_right_top", 300, 24}, PictureSize{"popup_right_middle", 300, 4},
        PictureSize{"popup_right_bottom", 300, 14}, PictureSize{"image_blank_startcap", 5, 14},
        PictureSize{"image_blank_centerfill", 5, 14}, PictureSize{"image_blank_endcap", 5, 14},
        PictureSize{"image_blue_startcap", 5, 14}, PictureSize{"image_blue_centerfill", 5, 14},
        PictureSize{"image_blue_endcap", 5, 14}));

TEST_F(ResourceLocatorTest, AMissingResourceHasNoPath) {
    EXPECT_TRUE(ResourceLocator::pathForResource(QStringLiteral("nothing"), QStringLiteral("png"))
                    .isEmpty());
    EXPECT_TRUE(ResourceLocator::imageNamed(QStringLiteral("nothing")).isNull());
    EXPECT_TRUE(ResourceLocator::icon(QStringLiteral("nothing")).isNull());
}

TEST_F(ResourceLocatorTest, ReadsFromAnotherFolderWhenToldTo) {
    const TemporaryFolder folder;
    writePicture(folder / "image_warning.png", {3, 3}, Qt::red);
    ResourceLocator::setFolder(textOf(folder.path()));
    const ResourceImage image = ResourceLocator::imageNamed(QStringLiteral("image_warning"));
    EXPECT_EQ(image.at1x.size(), QSize(3, 3));
    EXPECT_TRUE(image.at2x.isNull());
    EXPECT_EQ(image.forRatio(2.0).size(), QSize(3, 3));
}

TEST_F(ResourceLocatorTest, ADamagedFileIsNoPicture) {
    const TemporaryFolder folder;
    folder.write("image_warning.png", "not a picture");
    ResourceLocator::setFolder(textOf(folder.path()));
    EXPECT_TRUE(ResourceLocator::imageNamed(QStringLiteral("image_warning")).isNull());
}

TEST_F(ResourceLocatorTest, CountsTheLoadsOfEachFile) {
    const QString file = QStringLiteral("image_warning.png");
    const int before = ResourceLocator::loadCount(file);
    ResourceLocator::imageNamed(QStringLiteral("image_warning"));
    ResourceLocator::imageNamed(QStringLiteral("image_warning"));
    EXPECT_EQ(ResourceLocator::loadCount(file), before + 2);
}

TEST_F(ResourceLocatorTest, TheWindowIconHasAllSizes) {
    const QIcon icon = ResourceLocator::icon(QStringLiteral("icon_cd_burner"));
    for (const int size : {16, 24, 32, 48, 64, 128, 256}) {
        EXPECT_TRUE(icon.availableSizes().contains(QSize(size, size))) << size;
    }
}

} // namespace
