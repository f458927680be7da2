// SPDX-License-Identifier: GPL-2.0-or-later
#include "crate/UtilitiesBar.h"

#include "crate/Pictures.h"
#include "crate/Translation.h"

#include <QAction>
#include <QFile>

namespace crate {

namespace {

constexpr int toolIconSize = 24;

} // namespace

QString toolTitle(const ToolEntry &entry) {
    if (entry.tool != nullptr) {
        return entry.tool->localizedToolName();
    }
    return entry.id.isEmpty() ? QFile::decodeName(entry.file.filename().c_str()) : entry.id;
}

QIcon toolIcon(const ToolEntry &entry) {
    return entry.tool != nullptr ? entry.tool->icon() : picture("broken_tool");
}

UtilitiesBar::UtilitiesBar(const Utilities &utilities, QWidget *parent) : QToolBar(parent) {
    setObjectName(QStringLiteral("utilitiesBar"));
    setWindowTitle(translated("Tools"));
    setMovable(false);
    setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    setIconSize({toolIconSize, toolIconSize});
    for (std::size_t index = 0; index < utilities.entries().size(); ++index) {
        const ToolEntry &entry = utilities.entries()[index];
        QAction *action = addAction(toolIcon(entry), toolTitle(entry));
        action->setObjectName(QStringLiteral("tool:") + entry.id);
        if (entry.tool == nullptr) {
            action->setEnabled(false);
            action->setToolTip(entry.error);
            continue;
        }
        action->setToolTip(translated("Open %1").arg(toolTitle(entry)));
        connect(action, &QAction::triggered, this, [this, index] { emit toolChosen(index); });
    }
}

} // namespace crate
