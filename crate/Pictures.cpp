// SPDX-License-Identifier: GPL-2.0-or-later
#include "crate/Pictures.h"

#include <QString>

// Outside the namespace, as the macro needs it: the pictures are in a static library, from which
// the linker takes only what somebody asks for.
static void registerPictures() {
    Q_INIT_RESOURCE(crate);
}

namespace crate {

QIcon picture(const char *name) {
    registerPictures();
    const QString base = QStringLiteral(":/crate/") + QLatin1String(name);
    QIcon icon(base + QStringLiteral(".png")); // Finds the "@2x" one itself.
    if (QLatin1String(name) == QLatin1String("crate")) {
        icon.addFile(base + QStringLiteral("_large.png"));
    }
    return icon;
}

} // namespace crate
