// SPDX-License-Identifier: GPL-2.0-or-later
#include "crate/EmptyPage.h"

#include <QCoreApplication>
#include <QLabel>
#include <QPushButton>

#include <gtest/gtest.h>

namespace {

using crate::EmptyPage;
using crate::emptyTextFor;
using crate::ListState;

ListState state() {
    ListState state;
    state.folder = QStringLiteral("/music");
    return state;
}

TEST(EmptyText, ThereIsNoneWhileRowsAreShown) {
    ListState full = state();
    full.totalSongs = 5;
    full.visibleSongs = 1;
    full.isScanning = true;
    EXPECT_EQ(emptyTextFor(full), std::nullopt);
}

TEST(EmptyText, FolderWithoutSongsNamesItAndOffersAnother) {
    const auto text = emptyTextFor(state());
    ASSERT_TRUE(text);
    EXPECT_TRUE(text->text.contains(QStringLiteral("/music")));
    EXPECT_TRUE(text->offersFolder);
}

TEST(EmptyText, WhileSongsAreLookedForNothingIsSaidToBeMissing) {
    ListState scanning = state();
    scanning.isScanning = true;
    EXPECT_EQ(emptyTextFor(scanning)->heading, QStringLiteral("Looking for songs…"));
    EXPECT_FALSE(emptyTextFor(scanning)->offersFolder);
}

TEST(EmptyText, FolderThatCannotBeReadHasTheReason) {
    ListState failed = state();
    failed.error = QStringLiteral("Permission denied");
    EXPECT_TRUE(emptyTextFor(failed)->text.contains(QStringLiteral("/music: Permission denied")));
    EXPECT_TRUE(emptyTextFor(failed)->offersFolder);
}

TEST(EmptyText, SearchWithoutAMatchNamesTheSearch) {
    ListState searched = state();
    searched.totalSongs = 3;
    searched.search = QStringLiteral("xyz");
    EXPECT_TRUE(emptyTextFor(searched)->heading.contains(QStringLiteral("“xyz”")));
    EXPECT_FALSE(emptyTextFor(searched)->offersFolder);
}

TEST(EmptyPageWidget, ButtonIsThereWhenAnotherFolderMayHelp) {
    EmptyPage page;
    int wanted = 0;
    QObject::connect(&page, &EmptyPage::folderWanted, [&wanted] { ++wanted; });
    auto *button = page.findChild<QPushButton *>(QStringLiteral("emptyChoose"));
    page.setText({QStringLiteral("H"), QStringLiteral("T"), false});
    EXPECT_TRUE(button->isHidden());
    page.setText({QStringLiteral("H"), QStringLiteral("T"), true});
    EXPECT_FALSE(button->isHidden());
    EXPECT_EQ(page.findChild<QLabel *>(QStringLiteral("emptyHeading"))->text(),
              QStringLiteral("H"));
    button->click();
    EXPECT_EQ(wanted, 1);
}

TEST(EmptyPageWidget, LongTextIsNotCutOff) {
    EmptyPage page;
    page.resize(700, 500);
    page.setText({QStringLiteral("Heading"), QStringLiteral("many words ").repeated(30), true});
    page.show();
    QCoreApplication::processEvents();
    const auto *text = page.findChild<QLabel *>(QStringLiteral("emptyText"));
    EXPECT_GE(text->height(), text->heightForWidth(text->width()));
    EXPECT_GT(text->height(), 2 * text->fontMetrics().height());
}

} // namespace
