// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "crate/Utilities.h"

#include <QToolBar>

#include <cstddef>

namespace crate {

/// The bar of tools: icon and name of each, in the order in which they were loaded. One that could
/// not be loaded stands there disabled, with the reason as its tool tip.
class UtilitiesBar : public QToolBar {
    Q_OBJECT

public:
    UtilitiesBar(const Utilities &utilities, QWidget *parent = nullptr);

signals:
    void toolChosen(std::size_t index);
};

/// The name of a tool for a person; for one that could not be loaded its id, or its file's name.
QString toolTitle(const ToolEntry &entry);

/// The icon of a tool; a picture of the host's own for one that could not be loaded.
QIcon toolIcon(const ToolEntry &entry);

} // namespace crate
