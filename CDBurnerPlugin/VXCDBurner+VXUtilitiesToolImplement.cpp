// SPDX-License-Identifier: GPL-2.0-or-later
// What the host asks of the tool.
#include "CDBurnerPlugin/VXCDBurner.h"

#include "CDBurnerPlugin/Localization.h"
#include "CDBurnerPlugin/ResourceLocator.h"
#include "CDBurnerPlugin/UsageEvents.h"
#include "CDBurnerPlugin/VXCDBurnerMainWindowController.h"

QString VXCDBurner::toolName() const {
    return QStringLiteral("CD Burner");
}

QString VXCDBurner::localizedToolName() const {
    return localizedString("CD Burner");
}

QIcon VXCDBurner::icon() const {
    return ResourceLocator::icon(QStringLiteral("icon_cd_burner"));
}

qint64 VXCDBurner::startup() {
    return startupWith({});
}

qint64 VXCDBurner::startupWith(const QVariant & /*argument*/) {
    if (_mainWindowCtl != nullptr) {
        return 0;
    }
    _mainWindowCtl = VXCDBurnerMainWindowController::init();
    _mainWindowCtl->setDelegate(this);
    _mainWindowCtl->window()->setDelegate(this);
    sendUsageEvent(usage_event::open);
    return 0;
}

void VXCDBurner::shutdown() {
    releaseController();
}

bool VXCDBurner::isStartuped() const {
    return _mainWindowCtl != nullptr;
}

QWidget *VXCDBurner::mainWindow() {
    return _mainWindowCtl != nullptr ? _mainWindowCtl->window() : nullptr;
}

void VXCDBurner::setToolConfigs(const QVariantMap & /*configs*/) {
    // There is nothing to configure.
}

bool VXCDBurner::addFiles(const SongList &files) {
    if (_mainWindowCtl == nullptr) {
        return false;
    }
    _mainWindowCtl->addFiles(files);
    return true;
}
