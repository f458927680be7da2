// SPDX-License-Identifier: GPL-2.0-or-later
#include "crate/Crate.h"

#include "tests/support/TemporaryFolder.h"

#include <QApplication>
#include <QLabel>
#include <QTimer>

#include <gmock/gmock.h>

#include <csignal>

namespace {

using crate::CommandLine;
using crate::Crate;
using testing::MatchesRegex;

class CrateTest : public testing::Test {
protected:
    CrateTest() {
        commandLine_.usageLog = folder_ / "usage";
        commandLine_.musicFolder = folder_.path();
    }

    void start() { crate_ = Crate::create(commandLine_, CRATE_TEST_TOOLS_DIR, error_); }

    bool isToolStarted() const { return crate_->utilities().entries()[0].tool->isStartuped(); }

    QString message() const {
        const auto *label = crate_->window().findChild<QLabel *>(QStringLiteral("messageText"));
        return label->isVisible() ? label->text() : QString();
    }

    TemporaryFolder folder_;
    CommandLine commandLine_;
    std::string error_;
    std::unique_ptr<Crate> crate_;
};

TEST_F(CrateTest, NoToolIsStartedThatNobodyAskedFor) {
    start();
    EXPECT_TRUE(crate_->window().isVisible());
    EXPECT_FALSE(isToolStarted());
    EXPECT_EQ(message(), QString());
}

TEST_F(CrateTest, NamedToolIsOpened) {
    commandLine_.toolName = QStringLiteral("good TOOL");
    start();
    EXPECT_TRUE(isToolStarted());
}

TEST_F(CrateTest, FilesReachTheToolByteForByte) {
    commandLine_.files = {"/\xff.flac", "/b"};
    start();
    EXPECT_TRUE(isToolStarted());
    EXPECT_THAT(readFile(folder_ / "usage"),
                MatchesRegex(".* Good 2fff2e666c6163\n.* Good 2f62\n"));
}

TEST_F(CrateTest, ToolThatIsNotThereIsSaidInTheWindow) {
    commandLine_.toolName = QStringLiteral("No Tool");
    start();
    EXPECT_EQ(message(), QStringLiteral("There is no tool named “No Tool”."));
}

TEST_F(CrateTest, ImageDriveIsInTheEnvironmentAsItStands) {
    commandLine_.imageDrive = QByteArray("discs,minutes=74:/\xff");
    start();
    EXPECT_EQ(qgetenv("SCORCH_IMAGE_DRIVE"), "discs,minutes=74:/\xff");
}

TEST_F(CrateTest, UsageLogThatCannotBeWrittenIsAnError) {
    commandLine_.usageLog = "/nowhere/log";
    start();
    EXPECT_EQ(crate_, nullptr);
    EXPECT_THAT(error_, testing::HasSubstr("/nowhere/log"));
}

TEST_F(CrateTest, ClosingTheWindowEndsTheProgram) {
    commandLine_.toolName = QStringLiteral("Good Tool");
    start();
    QTimer::singleShot(0, [this] { crate_->window().close(); });
    EXPECT_EQ(QApplication::exec(), 0);
    EXPECT_FALSE(isToolStarted());
}

/// Keeps every window open, as a tool's user may.
class RefuseToClose : public QObject {
public:
    bool eventFilter(QObject * /*object*/, QEvent *event) override {
        if (event->type() == QEvent::Close) {
            event->ignore();
            return true;
        }
        return false;
    }
};

TEST_F(CrateTest, SignalEndsTheProgramWithoutAsking) {
    commandLine_.toolName = QStringLiteral("Good Tool");
    start();
    RefuseToClose refusal;
    QApplication::instance()->installEventFilter(&refusal);
    int aboutToQuit = 0;
    QObject::connect(qApp, &QCoreApplication::aboutToQuit, &refusal,
                     [&aboutToQuit] { ++aboutToQuit; });
    QTimer::singleShot(0, [] { std::raise(SIGTERM); });
    EXPECT_EQ(QApplication::exec(), 0);
    EXPECT_EQ(aboutToQuit, 1);
}

} // namespace
