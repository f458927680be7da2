// SPDX-License-Identifier: GPL-2.0-or-later
#include "CDBurnerPlugin/ResourceLocator.h"
#include "tests/CDBurnerPlugin/views/Picture.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace {

QString textOf(const std::filesystem::path &path) {
    return QString::fromStdString(path.string());
}

class ResourceLocatorTest : public testing::Test {
protected:
    void TearDown() override { ResourceLocator::setFolder({}); }
};

class ToolPicture : public testing::TestWithParam<std::pair<const char *, QSize>> {};

TEST_P(ToolPicture, IsThereForOneAndTwoPixelsAPoint) {
    const auto &[name, size] = GetParam();
    const ResourceImage image = ResourceLocator::imageNamed(QString::fromLatin1(name));
    EXPECT_EQ(image.at1x.size(), size);
    EXPECT_EQ(image.at2x.size(), size * 2);
    EXPECT_EQ(image.at2x.devicePixelRatio(), 2.0);
}

INSTANTIATE_TEST_SUITE_P(All, ToolPicture,
                         testing::Values(std::pair("icon_cd_burner", QSize(48, 48)),
                                         std::pair("icon_audio_cd", QSize(32, 32)),
                                         std::pair("icon_data_cd", QSize(32, 32)),
                                         std::pair("button_normal_delete", QSize(22, 22)),
                                         std::pair("button_down_delete", QSize(22, 22)),
                                         std::pair("image_warning", QSize(16, 16)),
                                         std::pair("image_drop_target", QSize(128, 128)),
                                         std::pair("table_bgcolor", QSize(8, 8)),
                                         std::pair("popup_right_top", QSize(300, 24)),
                                         std::pair("popup_right_middle", QSize(300, 4)),
                                         std::pair("popup_right_bottom", QSize(300, 14)),
                                         std::pair("image_blank_startcap", QSize(5, 14)),
                                         std::pair("image_blank_centerfill", QSize(5, 14)),
                                         std::pair("image_blank_endcap", QSize(5, 14)),
                                         std::pair("image_blue_startcap", QSize(5, 14)),
                                         std::pair("image_blue_centerfill", QSize(5, 14)),
                                         std::pair("image_blue_endcap", QSize(5, 14))));

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
