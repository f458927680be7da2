// SPDX-License-Identifier: GPL-2.0-or-later
#include "CDBurnerPlugin/CDBurnerPluginFactory.h"

#include "CDBurnerPlugin/Localization.h"
#include "CDBurnerPlugin/VXCDBurner.h"

std::unique_ptr<VXUtilitiesTool>
CDBurnerPluginFactory::initWithUtilitiesToolContext(VXUtilitiesToolContext *context) {
    loadLocalization(QLocale());
    return std::make_unique<VXCDBurner>(context);
}
