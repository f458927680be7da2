// SPDX-License-Identifier: GPL-2.0-or-later
// How much of the disc the list fills.
#include "CDBurnerPlugin/VXCDBurnerMainWindowController.h"

#include "CDBurnerPlugin/AbsentDevice.h"
#include "CDBurnerPlugin/Alert.h"
#include "CDBurnerPlugin/CapacityView.h"
#include "CDBurnerPlugin/Localization.h"
#include "engine/ScorchString.h"

#include <QLabel>
#include <QMessageBox>

namespace {

const QColor darkGreen = QColor::fromRgbF(0.0F, 0.5F, 0.0F);
const QColor red = QColor::fromRgbF(1.0F, 0.0F, 0.0F);
const QColor grey = QColor::fromRgbF(0.5F, 0.5F, 0.5F);

/// Plain 64-bit subtraction, which wraps where C++ would not say what happens.
std::int64_t difference(std::uint64_t amount, std::uint64_t other) {
    return static_cast<std::int64_t>(amount - other);
}

} // namespace

std::int64_t VXCDBurnerMainWindowController::getTotalCapacity() const {
    const ScorcherDevice &device = deviceOrAbsent(_selectedDevice);
    return isAudio() ? device.freeTimeOfDisc() : device.freeSizeOfDisc();
}

QString VXCDBurnerMainWindowController::formattedAmount(std::int64_t amount) const {
    return QString::fromStdString(isAudio() ? stringWithDurationFramesEnabled(amount, false)
                                            : stringWithFilesize(amount));
}

void VXCDBurnerMainWindowController::setRetainedColour(const QColor &colour) {
    QPalette palette = _txtRetainedCapacity->palette();
    // Setting a palette has the whole label laid out anew, also with the same colour.
    if (palette.color(QPalette::Active, QPalette::WindowText) != colour) {
        palette.setColor(QPalette::WindowText, colour);
        _txtRetainedCapacity->setPalette(palette);
    }
}

QString VXCDBurnerMainWindowController::getUsedCapacityString() const {
    const QString format = localizedString(isAudio() ? "Used Time: %@" : "Used Size: %@");
    return filledFormat(format,
                        {formattedAmount(static_cast<std::int64_t>(_scorcher->usedCapacity()))});
}

QString VXCDBurnerMainWindowController::getRetainedCapacityString() {
    const QString format =
        localizedString(isAudio() ? "Remaining Time: %@" : "Remaining Space: %@");
    std::int64_t amount = 0;
    if (isDiscSupported()) {
        setRetainedColour(darkGreen);
        if (deviceOrAbsent(_selectedDevice).isDiscInDevice()) {
            amount = difference(static_cast<std::uint64_t>(getTotalCapacity()),
                                _scorcher->usedCapacity());
        }
    } else {
        setRetainedColour(grey);
    }
    return filledFormat(format, {formattedAmount(amount)});
}

QString VXCDBurnerMainWindowController::getBeyondCapacityString() {
    if (!isDiscSupported()) {
        setRetainedColour(grey);
        return filledFormat(
            localizedString(isAudio() ? "Remaining Time: %@" : "Remaining Space: %@"),
            {formattedAmount(0)});
    }
    setRetainedColour(red);
    const std::uint64_t used = _scorcher->usedCapacity();
    const std::int64_t amount = difference(used, static_cast<std::uint64_t>(getTotalCapacity()));
    return filledFormat(localizedString(isAudio() ? "Beyond Time: %@" : "Beyond Size: %@"),
                        {formattedAmount(amount)});
}

void VXCDBurnerMainWindowController::updateCapacity() {
    if (getTotalCapacity() == 0) {
        // A maximum of its own: nobody divides by zero.
        _capacityView->setMaxValue(1.0);
        _capacityView->setDoubleValue(0.0);
    } else {
        const std::int64_t total = getTotalCapacity();
        const std::uint64_t used = _scorcher->usedCapacity();
        _capacityView->setMaxValue(static_cast<double>(total));
        _capacityView->setDoubleValue(static_cast<double>(used));
    }
    _txtUsedCapacity->setText(getUsedCapacityString());
    const bool overflows = _scorcher->isContentOverflowForDevice(_selectedDevice.get());
    _txtRetainedCapacity->setText(overflows ? getBeyondCapacityString()
                                            : getRetainedCapacityString());
}

bool VXCDBurnerMainWindowController::alertIfZeroStorage() {
    if (!_scorcher->isContentOverflowForDevice(_selectedDevice.get())) {
        return false;
    }
    AlertTexts texts;
    texts.message = localizedString("Insufficient storage space.\t");
    texts.defaultButton = localizedString("OK");
    runAlert(texts, _storageAlert);
    return true;
}
