// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/soak/ToolSession.h"

#include <QAccessible>
#include <QComboBox>
#include <QLabel>
#include <QWidget>

using namespace std::chrono_literals;

namespace {

constexpr auto burnLimit = 5min;
/// An alert follows the end of the sheet by way of a queue.
constexpr auto alertLimit = 5s;

} // namespace

bool ToolSession::open(const crate::CommandLine &commandLine, std::string &error) {
    if (!host_.start(commandLine, error)) {
        return false;
    }
    if (!waitUntilReady()) {
        error = "the drive or its disc does not become ready: " + status().toStdString();
        return false;
    }
    return true;
}

bool ToolSession::fillList(int kind) {
    host_.chooseDisc(kind);
    const auto &sources = kind == 0 ? scene_.songs() : scene_.files();
    middle_ = SoakScene::songSectors * 3 / 2;
    if (host_.rows() > 0) {
        return true;
    }
    const int expected = static_cast<int>(sources.size());
    return host_.addFiles(sources) && RunningHost::waitUntil([this, expected] {
               return host_.rows() == expected && host_.sheet() == nullptr;
           });
}

QString ToolSession::status() {
    auto *tips = host_.part<QWidget>("_errorTipsView");
    if (tips == nullptr || !tips->isVisible()) {
        return {};
    }
    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(tips);
    return accessible != nullptr ? accessible->text(QAccessible::Name) : QString();
}

bool ToolSession::waitUntilReady() {
    auto *drives = host_.part<QComboBox>("_devicePopup");
    if (!RunningHost::waitUntil([drives] { return drives->count() > 0; }, 30s)) {
        return false;
    }
    const auto isReady = [this] {
        return status().isEmpty() &&
               (rows() == 0 || host_.part<QPushButton>("_btnBurn")->isEnabled());
    };
    // A drive that has come back is in the popup, but not watched before somebody picks it; until
    // then the box shows what it showed.
    if (!RunningHost::waitUntil(isReady, 3s) || rows() == 0) {
        drives->setCurrentIndex(0);
        emit drives->activated(0);
    }
    return RunningHost::waitUntil(isReady, 60s);
}

BurnStep ToolSession::step() {
    const QDialog *sheet = host_.sheet();
    if (sheet == nullptr) {
        return BurnStep::notStarted;
    }
    const QString tips = sheet->findChild<QLabel *>(QStringLiteral("txtTips"))->text();
    if (step_ == BurnStep::verifying || tips == QStringLiteral("Verifying CD")) {
        return BurnStep::verifying;
    }
    const bool isClosing = tips.startsWith(QStringLiteral("Finish burning")) ||
                           tips == QStringLiteral("Closing session");
    if (step_ == BurnStep::closing || isClosing) {
        return BurnStep::closing;
    }
    const auto position = scene_.position();
    if (!position || *position < 20) {
        return std::max(step_, BurnStep::leadIn);
    }
    return *position < middle_ ? BurnStep::firstTrack : BurnStep::middle;
}

BurnEnding ToolSession::burn(const std::function<void(BurnStep)> &stepSeen) {
    isCancelled_ = false;
    step_ = BurnStep::notStarted;
    const int alerts = acknowledge_.count();
    auto *button = host_.part<QPushButton>("_btnBurn");
    if (!RunningHost::waitUntil([button] { return button->isEnabled(); }, 30s)) {
        return {BurnEnding::Kind::hung, QStringLiteral("Burn stays disabled")};
    }
    button->click();
    const auto isDone = [this] {
        return host_.sheetButton() != nullptr &&
               host_.sheetButton()->text() == QStringLiteral("OK");
    };
    bool wasUp = false;
    const bool hasEnded = RunningHost::waitUntil(
        [&] {
            wasUp = wasUp || host_.sheet() != nullptr;
            step_ = step();
            if (step_ != BurnStep::notStarted && !isDone()) {
                stepSeen(step_);
            }
            const bool isOver = wasUp && host_.sheet() == nullptr;
            return isOver || isDone() || acknowledge_.count() > alerts;
        },
        burnLimit);
    if (!hasEnded) {
        return {BurnEnding::Kind::hung, QStringLiteral("no end within five minutes")};
    }
    if (isDone()) {
        host_.sheetButton()->click();
        return {BurnEnding::Kind::done, {}};
    }
    const auto hasAlert = [&] {
        return acknowledge_.count() > alerts;
    };
    if (RunningHost::waitUntil(hasAlert, isCancelled_ ? 200ms : alertLimit)) {
        return {BurnEnding::Kind::alert, acknowledge_.informative()};
    }
    return {isCancelled_ ? BurnEnding::Kind::cancelled : BurnEnding::Kind::hung,
            QStringLiteral("the sheet went without a word")};
}

void ToolSession::cancel() {
    if (isCancelled_ || host_.sheetButton() == nullptr || !host_.sheetButton()->isEnabled()) {
        return;
    }
    isCancelled_ = true;
    host_.sheetButton()->click(); // Returns when the question has been answered.
}
