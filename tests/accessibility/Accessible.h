// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <atspi/atspi.h>

/// An object of a program as assistive technologies see it. Every question goes to the program; one
/// that has gone answers with nothing. A value; null when default-made.
class Accessible {
public:
    Accessible() = default;
    /// Takes over the reference.
    explicit Accessible(AtspiAccessible *object) : object_(object, release) {}

    /// What holds all the programs.
    static Accessible desktop();

    bool isNull() const { return object_ == nullptr; }
    bool operator==(const Accessible &other) const { return object_ == other.object_; }

    std::string name() const;
    std::string description() const;
    AtspiRole role() const;
    std::string roleName() const;
    /// The names of what labels it.
    std::vector<std::string> labels() const;
    bool hasState(AtspiStateType state) const;
    /// Visible on the screen, as far as windows do not cover it.
    bool isShowing() const { return hasState(ATSPI_STATE_SHOWING); }
    int process() const;

    std::vector<Accessible> children() const;
    /// Those for which `isWanted` holds, in this object's tree, in its order; without what is
    /// inside of tables, which may be long.
    std::vector<Accessible> all(const std::function<bool(const Accessible &)> &isWanted) const;
    /// The first of this role that has this name and is showing; null if there is none.
    Accessible find(AtspiRole role, const std::string &name) const;
    /// The first of this role that is showing.
    Accessible find(AtspiRole role) const;

    /// Does what the action of this name does. False if there is none.
    bool act(const std::string &action) const;
    std::vector<std::string> actions() const;
    bool grabFocus() const;

    /// The text of what is edited or shown, where there is one.
    std::string text() const;
    /// The value of a bar, and the ends of its range.
    std::optional<double> value() const;
    std::optional<double> maximumValue() const;

    // A table.
    int rowCount() const;
    std::string cellName(int row, int column) const;
    std::vector<int> selectedRows() const;
    bool selectRow(int row) const;

    /// One line for each object of the tree, for a person.
    std::string tree(const std::string &indent = {}) const;

private:
    static void release(AtspiAccessible *object);

    std::shared_ptr<AtspiAccessible> object_;
};
