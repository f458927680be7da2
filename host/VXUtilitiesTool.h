// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/SongList.h"
#include "host/VXUtilitiesToolContext.h"

#include <QIcon>
#include <QString>
#include <QVariantMap>
#include <QtPlugin>

#include <memory>

class QWidget;

/// A tool that a host opens in a window. All calls on the main thread, in this order: toolName,
/// localizedToolName and icon at any time; startup or startupWith; mainWindow, addFiles while
/// started; shutdown. Startup and shutdown may alternate any number of times. The user closing the
/// window ends the started state too.
class VXUtilitiesTool {
public:
    virtual ~VXUtilitiesTool() = default;
    VXUtilitiesTool(const VXUtilitiesTool &) = delete;
    VXUtilitiesTool &operator=(const VXUtilitiesTool &) = delete;

    /// Identifies the tool; never translated.
    virtual QString toolName() const = 0;
    /// The tool's name for people.
    virtual QString localizedToolName() const = 0;
    /// A new image at each call.
    virtual QIcon icon() const = 0;

    /// The same as startupWith with nothing.
    virtual qint64 startup() = 0;
    /// Builds the tool's window, hidden; a tool that is started already is left as it is. The
    /// argument is for tools that take one. Always 0.
    virtual qint64 startupWith(const QVariant &argument) = 0;
    virtual void shutdown() = 0;
    virtual bool isStartuped() const = 0;

    /// The tool's window, which the host shows; null while not started. Owned by the tool: it is
    /// gone after shutdown and after the user has closed it.
    virtual QWidget *mainWindow() = 0;

    virtual void setToolConfigs(const QVariantMap &configs) = 0;

    /// Files or songs for the tool. False, and they are dropped, while it is not started.
    virtual bool addFiles(const SongList &files) = 0;

protected:
    VXUtilitiesTool() = default;
};

/// What a tool's library has as its root object. One object a library; it makes the tool.
class VXUtilitiesToolFactory {
public:
    virtual ~VXUtilitiesToolFactory() = default;

    /// The new tool; never null. `context` is not owned and outlives the tool.
    virtual std::unique_ptr<VXUtilitiesTool>
    initWithUtilitiesToolContext(VXUtilitiesToolContext *context) = 0;
};

/// A library's metadata (JSON, read before any of its code is loaded) has three entries: "id"
/// (text, unique among tools), "version" (text) and "protocolVersion" (a number, which must be this
/// one).
inline constexpr int utilitiesToolProtocolVersion = 1;

#define VXUtilitiesToolFactory_iid "crate.UtilitiesToolFactory/1"
Q_DECLARE_INTERFACE(VXUtilitiesToolFactory, VXUtilitiesToolFactory_iid)
