// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

class VXUtilitiesToolContext;

/// Keeps the host's context where every part of the tool can reach it. One object a process, made
/// by the first caller (any thread) and never freed. Does not own the context: the host keeps that
/// alive as long as the tool exists.
class VXUtilitiesToolContextContainer {
public:
    VXUtilitiesToolContextContainer(const VXUtilitiesToolContextContainer &) = delete;
    VXUtilitiesToolContextContainer &operator=(const VXUtilitiesToolContextContainer &) = delete;

    static VXUtilitiesToolContextContainer &defaultContainer();

    /// Null until one has been set. Main thread.
    VXUtilitiesToolContext *utilitiesToolContext() const { return _context; }

    /// The first context stays; any later one is ignored. Main thread.
    void setUtilitiesToolContext(VXUtilitiesToolContext *context);

private:
    VXUtilitiesToolContextContainer() = default;
    ~VXUtilitiesToolContextContainer() = default;

    VXUtilitiesToolContext *_context = nullptr;
};
