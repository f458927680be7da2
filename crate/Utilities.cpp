// SPDX-License-Identifier: GPL-2.0-or-later
#include "crate/Utilities.h"

#include <QPointer>
#include <QScopedValueRollback>
#include <QWidget>

#include <utility>

namespace crate {

namespace {

/// Whether a tool's window is gone after it was asked to close. The tool may destroy it on the way.
bool closeWindow(QWidget *window) {
    const QPointer<QWidget> guard(window);
    const bool hasAgreed = window->close();
    return hasAgreed && (guard == nullptr || !guard->isVisible());
}

void showWindow(QWidget *window) {
    if (window->isMinimized()) {
        window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
    }
    window->show();
    window->raise();
    window->activateWindow();
}

} // namespace

Utilities::Utilities(std::vector<ToolEntry> entries) : entries_(std::move(entries)) {}

Utilities::~Utilities() {
    shutdownAll();
}

VXUtilitiesTool *Utilities::toolAt(std::size_t index) const {
    return index < entries_.size() ? entries_[index].tool.get() : nullptr;
}

std::optional<std::size_t> Utilities::find(const QString &toolName) const {
    for (std::size_t index = 0; index < entries_.size(); ++index) {
        const VXUtilitiesTool *tool = toolAt(index);
        if (tool != nullptr && tool->toolName().compare(toolName, Qt::CaseInsensitive) == 0) {
            return index;
        }
    }
    return std::nullopt;
}

std::optional<std::size_t> Utilities::firstLoaded() const {
    for (std::size_t index = 0; index < entries_.size(); ++index) {
        if (toolAt(index) != nullptr) {
            return index;
        }
    }
    return std::nullopt;
}

void Utilities::open(std::size_t index) {
    VXUtilitiesTool *tool = toolAt(index);
    if (tool == nullptr) {
        return;
    }
    if (!tool->isStartuped()) {
        tool->startup();
    }
    if (QWidget *window = tool->mainWindow()) {
        showWindow(window);
    }
}

bool Utilities::openWith(std::size_t index, const SongList &files) {
    open(index);
    VXUtilitiesTool *tool = toolAt(index);
    return tool != nullptr && tool->addFiles(files);
}

bool Utilities::closeAll() {
    if (isClosing_) {
        return false;
    }
    const QScopedValueRollback<bool> closing(isClosing_, true);
    for (const ToolEntry &entry : entries_) {
        const bool isStarted = entry.tool != nullptr && entry.tool->isStartuped();
        QWidget *window = isStarted ? entry.tool->mainWindow() : nullptr;
        if (window != nullptr && !closeWindow(window)) {
            return false;
        }
    }
    return true;
}

void Utilities::shutdownAll() {
    for (const ToolEntry &entry : entries_) {
        if (entry.tool != nullptr) {
            entry.tool->shutdown();
        }
    }
}

} // namespace crate
