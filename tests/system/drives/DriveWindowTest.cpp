// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/system/drives/DriveWindowTest.h"

#include <QLabel>
#include <QLineEdit>

#include <cstdlib>

namespace {

std::filesystem::path root() {
    return std::getenv("CD_RECORDER"); // NOLINT(*-mt-unsafe): nobody changes it.
}

} // namespace

recorder::DriveScene &DriveWindowTest::drive() {
    if (drive_ == nullptr) {
        drive_ = std::make_unique<recorder::DriveScene>(root());
    }
    return *drive_;
}

recorder::DriveScene DriveWindowTest::drive(const std::string &name) {
    return recorder::DriveScene(root(), name);
}

void DriveWindowTest::start() {
    crate::CommandLine commandLine;
    commandLine.toolName = QStringLiteral("CD Burner");
    std::string error;
    ASSERT_TRUE(host_.start(commandLine, error)) << error;
    ASSERT_TRUE(waitUntil([this] { return !tips().isEmpty() || isNameFieldShown(); }));
}

QString DriveWindowTest::tips() {
    auto *view = host_.part<QWidget>("_errorTipsView");
    return view->isVisible() ? view->accessibleName() : QString();
}

bool DriveWindowTest::isNameFieldShown() {
    return host_.part<QLineEdit>("_volumeName")->isVisible();
}

bool DriveWindowTest::waitForTips(const char *wanted) {
    return waitUntil([&] { return tips() == QLatin1String(wanted); });
}

bool DriveWindowTest::waitForNameField() {
    return waitUntil([this] { return isNameFieldShown(); });
}

QStringList DriveWindowTest::driveNames() {
    QStringList names;
    for (int index = 0; index < popup()->count(); ++index) {
        names.append(popup()->itemText(index));
    }
    return names;
}

void DriveWindowTest::choose(int index) {
    popup()->setCurrentIndex(index);
    emit popup()->activated(index);
}

recorder::Disc usedDisc(recorder::DiscKind kind) {
    recorder::Track track;
    track.pregap = 150;
    track.end = 750;
    track.recorded = 750;
    recorder::Disc disc = recorder::blankDisc(kind);
    disc.sessions = {{.tracks = {track}, .isClosed = true, .leadOut = 750}};
    disc.isFinal = true;
    return disc;
}
