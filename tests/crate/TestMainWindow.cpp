// SPDX-License-Identifier: GPL-2.0-or-later
#include "crate/MainWindow.h"

#include "crate/SongListView.h"
#include "crate/UtilitiesBar.h"
#include "tests/crate/support/EventLoop.h"
#include "tests/crate/support/FakeTool.h"
#include "tests/support/TemporaryFolder.h"

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QToolButton>

#include <gmock/gmock.h>

namespace {

using crate::MainWindow;
using crate::SongListView;
using crate::Utilities;
using crate::UtilitiesBar;
using testing::ElementsAre;

class CrateWindow : public testing::Test {
protected:
    CrateWindow() {
        folder_.write("b.flac", "");
        folder_.write("a.flac", "");
    }

    /// Shows the window and waits for its songs.
    void showWithSongs() {
        window_.show();
        ASSERT_TRUE(eventually([this] { return list().model()->rowCount() == 2; }));
    }

    SongListView &list() { return *window_.findChild<SongListView *>(); }

    QAction *action(const char *name) { return window_.findChild<QAction *>(QLatin1String(name)); }

    QString text(const char *label) {
        return window_.findChild<QLabel *>(QLatin1String(label))->text();
    }

    TemporaryFolder folder_;
    FakeToolRecord record_;
    Utilities utilities_{
        toolList(loadedTool(QStringLiteral("Tool"), record_),
                 brokenTool(QStringLiteral("broken"), QStringLiteral("It has no code.")))};
    MainWindow window_{utilities_, folder_.path()};
};

TEST_F(CrateWindow, NothingIsReadBeforeTheFirstPaint) {
    QCoreApplication::processEvents();
    EXPECT_EQ(list().model()->rowCount(), 0);
    EXPECT_EQ(text("emptyHeading"), QStringLiteral("Looking for songs…"));
    showWithSongs();
    EXPECT_TRUE(list().isVisible());
}

TEST_F(CrateWindow, BarHasEachToolByItsNameForPeople) {
    const QList<QAction *> actions = window_.findChild<UtilitiesBar *>()->actions();
    EXPECT_EQ(actions.at(0)->text(), QStringLiteral("Tool (local)"));
    EXPECT_TRUE(actions.at(0)->isEnabled());
    EXPECT_EQ(actions.at(1)->text(), QStringLiteral("broken"));
}

TEST_F(CrateWindow, ToolThatCouldNotBeLoadedIsDisabledAndSaysWhy) {
    const QAction *broken = action("tool:broken");
    EXPECT_FALSE(broken->isEnabled());
    EXPECT_EQ(broken->toolTip(), QStringLiteral("It has no code."));
}

TEST_F(CrateWindow, ClickOnAToolOpensIt) {
    action("tool:tool")->trigger();
    EXPECT_EQ(record_.startups, 1);
    EXPECT_TRUE(utilities_.entries()[0].tool->mainWindow()->isVisible());
}

TEST_F(CrateWindow, SongsAreSentOnlyWhenSomeAreSelected) {
    showWithSongs();
    auto *button = window_.findChild<QPushButton *>(QStringLiteral("send:tool:button"));
    EXPECT_FALSE(button->isEnabled());
    list().selectAll();
    EXPECT_TRUE(button->isEnabled());
    list().clearSelection();
    EXPECT_FALSE(button->isEnabled());
}

TEST_F(CrateWindow, SelectedSongsGoToTheToolFromTopToBottom) {
    showWithSongs();
    list().selectAll();
    window_.findChild<QPushButton *>(QStringLiteral("send:tool:button"))->click();
    const auto path = [this](const char *name) {
        return QByteArray::fromStdString((folder_ / name).string());
    };
    EXPECT_THAT(record_.files,
                ElementsAre(SongList{{path("a.flac"), {}, {}}, {path("b.flac"), {}, {}}}));
    EXPECT_TRUE(record_.isWindowShown);
}

TEST_F(CrateWindow, ContextMenuSendsToo) {
    showWithSongs();
    list().selectAll();
    emit list().customContextMenuRequested({5, 5});
    auto *menu = list().findChild<QMenu *>();
    ASSERT_NE(menu, nullptr);
    ASSERT_EQ(menu->actions().first()->text(), QStringLiteral("Send to Tool (local)"));
    menu->actions().first()->trigger();
    EXPECT_EQ(record_.files.size(), 1U);
    menu->close();
}

TEST_F(CrateWindow, FilesThatAreNotTakenAreSaid) {
    record_.refusesFiles = true;
    window_.show();
    window_.sendToTool(0, {{"/a", {}, {}}});
    EXPECT_TRUE(window_.findChild<QWidget *>(QStringLiteral("messageBar"))->isVisible());
    EXPECT_FALSE(text("messageText").isEmpty());
    window_.findChild<QToolButton *>(QStringLiteral("messageClose"))->click();
    EXPECT_FALSE(window_.findChild<QWidget *>(QStringLiteral("messageBar"))->isVisible());
}

TEST_F(CrateWindow, SearchFiltersAndSaysWhenNothingMatches) {
    showWithSongs();
    auto *search = window_.findChild<QLineEdit *>(QStringLiteral("search"));
    search->setText(QStringLiteral("b"));
    EXPECT_EQ(list().model()->rowCount(), 1);
    search->setText(QStringLiteral("nothing"));
    EXPECT_EQ(text("emptyHeading"), QStringLiteral("No song matches “nothing”"));
    EXPECT_FALSE(list().isVisible());
    search->clear();
    EXPECT_TRUE(list().isVisible());
}

TEST_F(CrateWindow, SelectionThatASearchHidesIsNotSent) {
    showWithSongs();
    list().selectAll();
    window_.findChild<QLineEdit *>(QStringLiteral("search"))->setText(QStringLiteral("b"));
    EXPECT_FALSE(action("send:tool")->isEnabled());
    EXPECT_EQ(text("summary"), QStringLiteral("1 song, 0 minutes"));
}

TEST_F(CrateWindow, SummaryCountsSongsAndSelection) {
    showWithSongs();
    EXPECT_EQ(text("summary"), QStringLiteral("2 songs, 0 minutes"));
    list().selectAll();
    EXPECT_EQ(text("summary"), QStringLiteral("2 songs selected"));
}

TEST_F(CrateWindow, RefusalOfAToolCancelsTheQuit) {
    window_.show();
    window_.openTool(0);
    int agreed = 0;
    QObject::connect(&window_, &MainWindow::quitAgreed, [&agreed] { ++agreed; });
    record_.refusesClose = true;
    EXPECT_FALSE(window_.close());
    EXPECT_TRUE(window_.isVisible());
    EXPECT_EQ(record_.shutdowns, 0);
    EXPECT_EQ(agreed, 0);
    record_.refusesClose = false;
    EXPECT_TRUE(window_.close());
    EXPECT_EQ(agreed, 1);
    EXPECT_EQ(record_.closes, 2);
}

TEST_F(CrateWindow, ToolIsStoppedOnQuit) {
    record_.destroysWindowOnClose = false;
    window_.show();
    window_.openTool(0);
    window_.close();
    EXPECT_EQ(record_.shutdowns, 1);
}

TEST_F(CrateWindow, OpenToolDoesNotBlockTheWindow) {
    window_.show();
    window_.openTool(0);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_TRUE(window_.isEnabled());
    EXPECT_EQ(utilities_.entries()[0].tool->mainWindow()->parent(), nullptr);
}

} // namespace
