// SPDX-License-Identifier: GPL-2.0-or-later
#include "CDBurnerPlugin/VXUtilitiesToolContextContainer.h"

VXUtilitiesToolContextContainer &VXUtilitiesToolContextContainer::defaultContainer() {
    static auto *const container = new VXUtilitiesToolContextContainer;
    return *container;
}

void VXUtilitiesToolContextContainer::setUtilitiesToolContext(VXUtilitiesToolContext *context) {
    if (_context == nullptr) {
        _context = context;
    }
}
