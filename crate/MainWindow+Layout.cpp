// SPDX-License-Identifier: GPL-2.0-or-later
#include "crate/MainWindow.h"

#include "crate/EmptyPage.h"
#include "crate/MessageBar.h"
#include "crate/SongListView.h"
#include "crate/Translation.h"
#include "crate/UtilitiesBar.h"

#include <QAction>
#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QProgressBar>
#include <QPushButton>
#include <QStackedWidget>
#include <QToolButton>
#include <QVBoxLayout>

namespace crate {

namespace {

constexpr int searchWidth = 240;
constexpr int busyWidth = 96;
constexpr int busyHeight = 6;

QFrame *line(QWidget *parent) {
    auto *frame = new QFrame(parent);
    frame->setFrameShape(QFrame::HLine);
    frame->setForegroundRole(QPalette::Mid);
    frame->setFrameShadow(QFrame::Plain);
    frame->setFixedHeight(1);
    return frame;
}

/// A button that does what an action does, and can do it when the action can.
QPushButton *buttonFor(QAction *action, QWidget *parent) {
    auto *button = new QPushButton(action->icon(), action->text(), parent);
    button->setObjectName(action->objectName() + QStringLiteral(":button"));
    button->setToolTip(action->toolTip());
    button->setEnabled(action->isEnabled());
    QObject::connect(button, &QPushButton::clicked, action, &QAction::trigger);
    QObject::connect(action, &QAction::enabledChanged, button, &QWidget::setEnabled);
    return button;
}

} // namespace

void MainWindow::buildContent() {
    auto *content = new QWidget(this);
    messages_ = new MessageBar(content);
    pages_ = new QStackedWidget(content);
    list_ = new SongListView(model_, pages_);
    list_->setContextMenuPolicy(Qt::CustomContextMenu);
    emptyPage_ = new EmptyPage(pages_);
    pages_->addWidget(emptyPage_);
    pages_->addWidget(list_);

    auto *layout = new QVBoxLayout(content);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(messages_);
    layout->addWidget(line(content));
    layout->addWidget(pages_, 1);
    layout->addWidget(line(content));
    setCentralWidget(content);
}

QWidget *MainWindow::buildFooter() {
    auto *footer = new QWidget(centralWidget());
    summary_ = new QLabel(footer);
    summary_->setObjectName(QStringLiteral("summary"));
    busy_ = new QProgressBar(footer);
    busy_->setObjectName(QStringLiteral("scanning"));
    busy_->setAccessibleName(translated("Looking for songs"));
    busy_->setRange(0, 0);
    busy_->setTextVisible(false);
    busy_->setFixedSize(busyWidth, busyHeight);

    auto *layout = new QHBoxLayout(footer);
    layout->setContentsMargins(12, 8, 12, 8);
    layout->setSpacing(12);
    layout->addWidget(summary_);
    layout->addWidget(busy_);
    layout->addStretch();
    for (QAction *action : std::as_const(sendActions_)) {
        layout->addWidget(buttonFor(action, footer));
    }
    return footer;
}

void MainWindow::buildSendActions() {
    for (std::size_t index = 0; index < utilities_.entries().size(); ++index) {
        const ToolEntry &entry = utilities_.entries()[index];
        if (entry.tool == nullptr) {
            continue;
        }
        auto *action =
            new QAction(toolIcon(entry), translated("Send to %1").arg(toolTitle(entry)), this);
        action->setObjectName(QStringLiteral("send:") + entry.id);
        action->setToolTip(
            translated("Add the selected songs to the list of %1").arg(toolTitle(entry)));
        action->setEnabled(false);
        connect(action, &QAction::triggered, this,
                [this, index] { sendToTool(index, list_->selectedSongs()); });
        sendActions_.append(action);
    }
    centralWidget()->layout()->addWidget(buildFooter());
}

void MainWindow::buildToolBar() {
    auto *bar = new UtilitiesBar(utilities_, this);
    connect(bar, &UtilitiesBar::toolChosen, this, &MainWindow::openTool);
    auto *space = new QWidget(bar);
    space->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    search_ = new QLineEdit(bar);
    search_->setObjectName(QStringLiteral("search"));
    search_->setPlaceholderText(translated("Search"));
    search_->setAccessibleName(translated("Search songs"));
    search_->setClearButtonEnabled(true);
    // Its button has only a picture.
    for (auto *clear : search_->findChildren<QToolButton *>()) {
        clear->setAccessibleName(translated("Clear the search"));
    }
    search_->setFixedWidth(searchWidth);
    bar->addWidget(space);
    bar->addWidget(search_);
    addToolBar(bar);
    // A bar that is closed by chance would take the tools with it.
    setContextMenuPolicy(Qt::PreventContextMenu);
}

void MainWindow::buildMenus() {
    QMenu *file = menuBar()->addMenu(translated("&File"));
    file->addAction(translated("&Choose Music Folder…"), QKeySequence::Open, this,
                    &MainWindow::chooseFolder);
    file->addAction(translated("&Look for Songs Again"), QKeySequence::Refresh, this,
                    &MainWindow::scan);
    file->addSeparator();
    file->addAction(translated("&Quit"), QKeySequence::Quit, this, &QWidget::close);

    QMenu *edit = menuBar()->addMenu(translated("&Edit"));
    selectAll_ = edit->addAction(translated("Select &All"), list_, &QAbstractItemView::selectAll);
    edit->addAction(translated("&Find Songs"), QKeySequence::Find, this, [this] {
        search_->setFocus();
        search_->selectAll();
    });

    QMenu *songs = menuBar()->addMenu(translated("&Songs"));
    songs->addActions(sendActions_);

    QMenu *tools = menuBar()->addMenu(translated("&Tools"));
    for (std::size_t index = 0; index < utilities_.entries().size(); ++index) {
        const ToolEntry &entry = utilities_.entries()[index];
        QAction *action = tools->addAction(toolIcon(entry), toolTitle(entry));
        if (entry.tool != nullptr) {
            connect(action, &QAction::triggered, this, [this, index] { openTool(index); });
        } else {
            // The reason is for those, too, who do not use a mouse.
            connect(action, &QAction::triggered, this, [this, &entry] {
                showMessage(translated("%1: %2").arg(toolTitle(entry), entry.error));
            });
        }
    }

    QMenu *help = menuBar()->addMenu(translated("&Help"));
    help->addAction(translated("&About Crate"), this, &MainWindow::showAbout);
}

} // namespace crate
