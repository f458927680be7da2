// SPDX-License-Identifier: GPL-2.0-or-later
#include "CDBurnerPlugin/UsageEvents.h"

#include "CDBurnerPlugin/VXUtilitiesToolContextContainer.h"
#include "host/VXUtilitiesToolContext.h"

void sendUsageEvent(const char *key) {
    VXUtilitiesToolContext *const context =
        VXUtilitiesToolContextContainer::defaultContainer().utilitiesToolContext();
    VXUserDataCollector *const collector =
        context != nullptr ? context->userDataCollector() : nullptr;
    if (collector != nullptr) {
        collector->collectDataWithTargetAndKey(QStringLiteral("CDBurn"), QString::fromLatin1(key));
    }
}
