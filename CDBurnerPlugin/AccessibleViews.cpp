// SPDX-License-Identifier: GPL-2.0-or-later
#include "CDBurnerPlugin/AccessibleViews.h"

#include "CDBurnerPlugin/AnnouncedLabel.h"
#include "CDBurnerPlugin/CapacityView.h"
#include "CDBurnerPlugin/ErrorTipsView.h"
#include "CDBurnerPlugin/MainWindow.h"
#include "CDBurnerPlugin/ProgressIndicator.h"
#include "CDBurnerPlugin/VXDragImageView.h"
#include "CDBurnerPlugin/VXHelpView.h"

#include <QAccessible>
#include <QAccessibleWidget>

namespace {

/// A bar that is read, never set: its value in percent.
class AccessibleBar : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    explicit AccessibleBar(QWidget *bar) : QAccessibleWidget(bar, QAccessible::ProgressBar) {}

    void *interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ValueInterface ? static_cast<QAccessibleValueInterface *>(this)
                                                   : QAccessibleWidget::interface_cast(type);
    }

    QVariant currentValue() const override {
        if (const auto *capacity = qobject_cast<const CapacityView *>(widget())) {
            return capacity->percent();
        }
        const auto *indicator = qobject_cast<const ProgressIndicator *>(widget());
        return indicator != nullptr ? indicator->percent() : 0;
    }
    void setCurrentValue(const QVariant & /*value*/) override {}
    QVariant minimumValue() const override { return 0; }
    QVariant maximumValue() const override { return 100; }
    QVariant minimumStepSize() const override { return 1; }

    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.readOnly = true;
        return state;
    }
};

/// A label whose name stays what was announced last, long enough to be asked for; what it shows by
/// now is its description.
class AccessibleAnnouncedLabel : public QAccessibleWidget {
public:
    explicit AccessibleAnnouncedLabel(AnnouncedLabel *label)
        : QAccessibleWidget(label, QAccessible::Notification) {}

    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Description
                   ? static_cast<const AnnouncedLabel *>(object())->text()
                   : QAccessibleWidget::text(kind);
    }
};

QAccessibleInterface *makeInterface(const QString & /*className*/, QObject *object) {
    if (qobject_cast<CapacityView *>(object) != nullptr ||
        qobject_cast<ProgressIndicator *>(object) != nullptr) {
        return new AccessibleBar(static_cast<QWidget *>(object));
    }
    if (auto *label = qobject_cast<AnnouncedLabel *>(object)) {
        return new AccessibleAnnouncedLabel(label);
    }
    if (qobject_cast<ErrorTipsView *>(object) != nullptr ||
        qobject_cast<VXHelpView *>(object) != nullptr) {
        return new QAccessibleWidget(static_cast<QWidget *>(object), QAccessible::Notification);
    }
    if (qobject_cast<VXDragImageView *>(object) != nullptr) {
        return new QAccessibleWidget(static_cast<QWidget *>(object), QAccessible::Graphic);
    }
    if (qobject_cast<MainWindow *>(object) != nullptr) {
        return new QAccessibleWidget(static_cast<QWidget *>(object), QAccessible::Window);
    }
    return nullptr;
}

} // namespace

void installAccessibleViews() {
    QAccessible::installFactory(makeInterface); // Known once, however often it is installed.
}

void announce(QWidget *view) {
    if (QAccessible::isActive() && view->isVisible()) {
        // A notification that comes into sight is what screen readers speak of by themselves.
        QAccessibleEvent shown(view, QAccessible::ObjectShow);
        QAccessible::updateAccessibility(&shown);
    }
}
