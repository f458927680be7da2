// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/accessibility/Accessible.h"

namespace {

/// Takes over what a call of the library hands out.
template <typename Object>
std::shared_ptr<Object> owned(Object *object) {
    return {object, [](Object *held) {
                if (held != nullptr) {
                    g_object_unref(held);
                }
            }};
}

std::string taken(gchar *text) {
    std::string copy = text != nullptr ? text : "";
    g_free(text);
    return copy;
}

} // namespace

void Accessible::release(AtspiAccessible *object) {
    if (object != nullptr) {
        g_object_unref(object);
    }
}

Accessible Accessible::desktop() {
    AtspiAccessible *desktop = atspi_get_desktop(0);
    // What the library remembers may be older than what the program shows.
    atspi_accessible_set_cache_mask(desktop, ATSPI_CACHE_NONE);
    return Accessible(desktop);
}

std::string Accessible::name() const {
    return taken(atspi_accessible_get_name(object_.get(), nullptr));
}

std::string Accessible::description() const {
    return taken(atspi_accessible_get_description(object_.get(), nullptr));
}

AtspiRole Accessible::role() const {
    return atspi_accessible_get_role(object_.get(), nullptr);
}

std::string Accessible::roleName() const {
    return taken(atspi_accessible_get_role_name(object_.get(), nullptr));
}

std::vector<std::string> Accessible::labels() const {
    std::vector<std::string> labels;
    GArray *relations = atspi_accessible_get_relation_set(object_.get(), nullptr);
    for (guint i = 0; relations != nullptr && i < relations->len; ++i) {
        const auto relation = owned(g_array_index(relations, AtspiRelation *, i));
        const bool isLabel =
            atspi_relation_get_relation_type(relation.get()) == ATSPI_RELATION_LABELLED_BY;
        for (int target = 0; isLabel && target < atspi_relation_get_n_targets(relation.get());
             ++target) {
            labels.push_back(Accessible(atspi_relation_get_target(relation.get(), target)).name());
        }
    }
    if (relations != nullptr) {
        g_array_free(relations, TRUE);
    }
    return labels;
}

bool Accessible::hasState(AtspiStateType state) const {
    if (isNull()) { // The library asks everything else of nothing, but this.
        return false;
    }
    const auto states = owned(atspi_accessible_get_state_set(object_.get()));
    return states != nullptr && atspi_state_set_contains(states.get(), state) != FALSE;
}

int Accessible::process() const {
    return static_cast<int>(atspi_accessible_get_process_id(object_.get(), nullptr));
}

std::vector<Accessible> Accessible::children() const {
    std::vector<Accessible> children;
    const int count = atspi_accessible_get_child_count(object_.get(), nullptr);
    for (int i = 0; i < count; ++i) {
        if (auto *child = atspi_accessible_get_child_at_index(object_.get(), i, nullptr)) {
            children.emplace_back(child);
        }
    }
    return children;
}

std::vector<Accessible>
Accessible::all(const std::function<bool(const Accessible &)> &isWanted) const {
    std::vector<Accessible> found;
    if (isWanted(*this)) {
        found.push_back(*this);
    }
    const AtspiRole own = role();
    if (own == ATSPI_ROLE_TABLE || own == ATSPI_ROLE_TREE || own == ATSPI_ROLE_TREE_TABLE) {
        return found;
    }
    for (const Accessible &child : children()) {
        const std::vector<Accessible> below = child.all(isWanted);
        found.insert(found.end(), below.begin(), below.end());
    }
    return found;
}

Accessible Accessible::find(AtspiRole role, const std::string &name) const {
    const auto found = all([&](const Accessible &object) {
        return object.role() == role && object.name() == name && object.isShowing();
    });
    return found.empty() ? Accessible() : found.front();
}

Accessible Accessible::find(AtspiRole role) const {
    const auto found = all(
        [role](const Accessible &object) { return object.role() == role && object.isShowing(); });
    return found.empty() ? Accessible() : found.front();
}

std::vector<std::string> Accessible::actions() const {
    std::vector<std::string> names;
    const auto action = owned(atspi_accessible_get_action_iface(object_.get()));
    const int count = action ? atspi_action_get_n_actions(action.get(), nullptr) : 0;
    names.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        names.push_back(taken(atspi_action_get_action_name(action.get(), i, nullptr)));
    }
    return names;
}

bool Accessible::act(const std::string &action) const {
    const std::vector<std::string> names = actions();
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (names[i] == action) {
            const auto interface = owned(atspi_accessible_get_action_iface(object_.get()));
            return atspi_action_do_action(interface.get(), static_cast<int>(i), nullptr) != FALSE;
        }
    }
    return false;
}

bool Accessible::grabFocus() const {
    const auto component = owned(atspi_accessible_get_component_iface(object_.get()));
    return component != nullptr && atspi_component_grab_focus(component.get(), nullptr) != FALSE;
}

std::string Accessible::text() const {
    const auto text = owned(atspi_accessible_get_text_iface(object_.get()));
    return text != nullptr ? taken(atspi_text_get_text(text.get(), 0, -1, nullptr)) : "";
}

std::optional<double> Accessible::value() const {
    const auto value = owned(atspi_accessible_get_value_iface(object_.get()));
    return value ? std::optional(atspi_value_get_current_value(value.get(), nullptr))
                 : std::nullopt;
}

std::optional<double> Accessible::maximumValue() const {
    const auto value = owned(atspi_accessible_get_value_iface(object_.get()));
    return value ? std::optional(atspi_value_get_maximum_value(value.get(), nullptr))
                 : std::nullopt;
}

int Accessible::rowCount() const {
    const auto table = owned(atspi_accessible_get_table_iface(object_.get()));
    return table ? atspi_table_get_n_rows(table.get(), nullptr) : 0;
}

std::string Accessible::cellName(int row, int column) const {
    const auto table = owned(atspi_accessible_get_table_iface(object_.get()));
    auto *cell = table ? atspi_table_get_accessible_at(table.get(), row, column, nullptr) : nullptr;
    return cell != nullptr ? Accessible(cell).name() : std::string();
}

std::vector<int> Accessible::selectedRows() const {
    std::vector<int> rows;
    const auto table = owned(atspi_accessible_get_table_iface(object_.get()));
    GArray *selected = table ? atspi_table_get_selected_rows(table.get(), nullptr) : nullptr;
    for (guint i = 0; selected != nullptr && i < selected->len; ++i) {
        rows.push_back(g_array_index(selected, gint, i));
    }
    if (selected != nullptr) {
        g_array_free(selected, TRUE);
    }
    return rows;
}

bool Accessible::selectRow(int row) const {
    const auto table = owned(atspi_accessible_get_table_iface(object_.get()));
    return table && atspi_table_add_row_selection(table.get(), row, nullptr) != FALSE;
}

std::string Accessible::tree(const std::string &indent) const {
    std::string lines = indent + roleName() + " \"" + name() + "\"";
    const std::string more = description();
    lines += (more.empty() ? "" : " (" + more + ")") + (isShowing() ? "" : " hidden") +
             (hasState(ATSPI_STATE_FOCUSABLE) ? " focusable" : "") +
             (hasState(ATSPI_STATE_FOCUSED) ? " FOCUSED" : "") + "\n";
    for (const Accessible &child : children()) {
        lines += child.tree(indent + "  ");
    }
    return lines;
}
