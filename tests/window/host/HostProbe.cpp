// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/window/host/HostProbe.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QComboBox>
#include <QCursor>
#include <QDropEvent>
#include <QItemSelectionModel>
#include <QJsonArray>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QScreen>
#include <QScrollBar>

namespace {

QJsonObject place(const QRect &rect) {
    return {{"x", rect.x()}, {"y", rect.y()}, {"w", rect.width()}, {"h", rect.height()}};
}

QRect onScreen(const QWidget &widget) {
    return {widget.mapToGlobal(QPoint(0, 0)), widget.size()};
}

QString nameOf(const QObject *object) {
    if (object == nullptr) {
        return {};
    }
    return object->objectName().isEmpty() ? QString::fromLatin1(object->metaObject()->className())
                                          : object->objectName();
}

QString textOf(const QWidget &widget) {
    const auto *combo = qobject_cast<const QComboBox *>(&widget);
    return combo != nullptr ? combo->currentText() : widget.property("text").toString();
}

QJsonObject widgetState(const QWidget &widget) {
    QJsonObject state = place(onScreen(widget));
    state["visible"] = widget.isVisible();
    state["enabled"] = widget.isEnabled();
    state["text"] = textOf(widget);
    if (const auto *edit = qobject_cast<const QLineEdit *>(&widget)) {
        state["selected"] = edit->selectedText();
        state["cursor"] = edit->cursorPosition();
    }
    return state;
}

/// "rows": the texts of each row's columns and its place; "selected", "current": row numbers;
/// "area": where rows are seen.
QJsonObject tableState(const QAbstractItemView &view) {
    const QAbstractItemModel &model = *view.model();
    QJsonArray rows;
    for (int row = 0; row < model.rowCount(); ++row) {
        QJsonArray texts;
        QRect rect;
        for (int column = 0; column < model.columnCount(); ++column) {
            const QModelIndex index = model.index(row, column);
            texts.append(index.data().toString());
            rect |= view.visualRect(index);
        }
        QJsonObject state = place(QRect(view.viewport()->mapToGlobal(rect.topLeft()), rect.size()));
        state["texts"] = texts;
        rows.append(state);
    }
    QJsonArray selected;
    for (int row = 0; row < model.rowCount(); ++row) {
        if (view.selectionModel()->isRowSelected(row, {})) {
            selected.append(row);
        }
    }
    return {{"rows", rows},
            {"selected", selected},
            {"current", view.currentIndex().row()},
            {"area", place(onScreen(*view.viewport()))}};
}

QJsonObject windowsState() {
    QJsonObject windows;
    for (const QWidget *window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && window->internalWinId() != 0) {
            QJsonObject state = place(onScreen(*window));
            state["title"] = window->windowTitle();
            state["content"] = place(QRect(QPoint(), window->minimumSizeHint()));
            state["id"] = static_cast<qint64>(window->internalWinId());
            windows[nameOf(window)] = state;
        }
    }
    return windows;
}

QJsonObject widgetsState() {
    QJsonObject widgets;
    for (const QWidget *widget : QApplication::allWidgets()) {
        const QString name = widget->objectName();
        if (!name.isEmpty() && !name.startsWith(QLatin1String("qt_"))) {
            widgets[name] = widgetState(*widget);
        }
    }
    return widgets;
}

QJsonObject alertState() {
    QJsonObject buttons;
    if (const auto *alert = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
        for (const QAbstractButton *button : alert->buttons()) {
            buttons[button->text()] = place(onScreen(*button));
        }
    }
    return buttons;
}

QJsonArray screensState() {
    QJsonArray screens;
    for (const QScreen *screen : QGuiApplication::screens()) {
        screens.append(place(screen->geometry()));
    }
    return screens;
}

QAbstractItemView *tableNamed(const char *name) {
    for (QWidget *widget : QApplication::allWidgets()) {
        auto *view = qobject_cast<QAbstractItemView *>(widget);
        if (view != nullptr && view->objectName() == QLatin1String(name)) {
            return view;
        }
    }
    return nullptr;
}

} // namespace

QJsonObject HostProbe::state() const {
    QJsonObject all{{"windows", windowsState()},
                    {"widgets", widgetsState()},
                    {"active", nameOf(QApplication::activeWindow())},
                    {"focus", nameOf(QApplication::focusWidget())},
                    {"alert", alertState()},
                    {"cursor", -1},
                    {"dragAnswer", dragAnswer_},
                    {"shows", shows_},
                    {"hides", hides_},
                    {"screens", screensState()}};
    if (const QAbstractItemView *list = tableNamed("_filesTableView")) {
        all["list"] = tableState(*list);
    }
    if (const QAbstractItemView *songs = tableNamed("songList")) {
        all["songs"] = tableState(*songs);
    }
    if (const QCursor *cursor = QGuiApplication::overrideCursor()) {
        all["cursor"] = cursor->shape();
    }
    if (dragPoint_) {
        all["dragPoint"] = QJsonArray{dragPoint_->x(), dragPoint_->y()};
    }
    return all;
}

void HostProbe::seeDrag(const QWidget &widget, const QDropEvent &event) {
    dragPoint_ = widget.mapToGlobal(event.position().toPoint());
    dragAnswer_ = event.isAccepted() ? QStringLiteral("taken") : QStringLiteral("refused");
}

bool HostProbe::notify(QObject *receiver, QEvent *event) {
    const QPointer<QWidget> widget = qobject_cast<QWidget *>(receiver);
    const bool result = QApplication::notify(receiver, event); // Answers first, is looked at then.
    if (widget.isNull()) {
        return result;
    }
    const bool isDeleteButton = widget->objectName() == QLatin1String("_btnDelete");
    switch (event->type()) {
    case QEvent::DragEnter:
    case QEvent::DragMove:
        seeDrag(*widget, *static_cast<QDropEvent *>(event));
        break;
    case QEvent::DragLeave:
    case QEvent::Drop:
        dragPoint_.reset();
        break;
    case QEvent::Show:
        shows_ += isDeleteButton ? 1 : 0;
        break;
    case QEvent::Hide:
        hides_ += isDeleteButton ? 1 : 0;
        break;
    default:
        break;
    }
    return result;
}
