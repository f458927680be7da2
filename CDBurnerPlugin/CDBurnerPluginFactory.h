// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/VXUtilitiesTool.h"

#include <QObject>

/// The root object of the tool's library.
class CDBurnerPluginFactory final : public QObject, public VXUtilitiesToolFactory {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID VXUtilitiesToolFactory_iid FILE "cd-burner.json")
    Q_INTERFACES(VXUtilitiesToolFactory)

public:
    std::unique_ptr<VXUtilitiesTool>
    initWithUtilitiesToolContext(VXUtilitiesToolContext *context) override;
};
