// SPDX-License-Identifier: GPL-2.0-or-later
#include "crate/MainWindow.h"

#include "crate/EmptyPage.h"
#include "crate/MessageBar.h"
#include "crate/Pictures.h"
#include "crate/Settings.h"
#include "crate/SongListView.h"
#include "crate/SongModel.h"
#include "crate/Translation.h"

#include <QAction>
#include <QCloseEvent>
#include <QFile>
#include <QFileDialog>
#include <QItemSelectionModel>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QProgressBar>
#include <QStackedWidget>

#include <utility>

namespace crate {

MainWindow::MainWindow(Utilities &utilities, std::filesystem::path musicFolder)
    : utilities_(utilities),
      musicFolder_(std::move(musicFolder)),
      model_(new SongModel(this)),
      scanner_(new SongScanner(this)) {
    setObjectName(QStringLiteral("crateWindow"));
    setWindowTitle(translated("Crate"));
    setWindowIcon(picture("crate"));
    buildContent();
    buildSendActions();
    buildToolBar();
    buildMenus();
    connectLibrary();
    resize(900, 600);
    restoreGeometry(settings::windowGeometry());
    list_->restoreHeaderState(settings::songListHeader());
    updateContent();
    list_->setFocus();
}

// Here, where the classes of the members are whole.
MainWindow::~MainWindow() {
    scanner_->stop();
}

void MainWindow::openTool(std::size_t index) {
    utilities_.open(index);
}

void MainWindow::sendToTool(std::size_t index, const SongList &files) {
    if (!utilities_.openWith(index, files)) {
        showMessage(translated("The tool did not take the songs."));
    }
}

void MainWindow::showMessage(const QString &text) {
    messages_->showMessage(text);
}

void MainWindow::connectLibrary() {
    connect(scanner_, &SongScanner::songsFound, model_, &SongModel::addSongs);
    connect(scanner_, &SongScanner::finished, this, [this](const QString &error) {
        scanError_ = error;
        updateContent();
    });
    connect(model_, &SongModel::contentChanged, this, &MainWindow::updateContent);
    connect(search_, &QLineEdit::textChanged, model_, &SongModel::setSearch);
    connect(emptyPage_, &EmptyPage::folderWanted, this, &MainWindow::chooseFolder);
    connect(list_, &QWidget::customContextMenuRequested, this, &MainWindow::showContextMenu);
    const auto onSelection = [this] {
        updateSendActions();
        updateSummary();
    };
    connect(list_->selectionModel(), &QItemSelectionModel::selectionChanged, this, onSelection);
    connect(model_, &QAbstractItemModel::modelReset, this, onSelection);
}

void MainWindow::paintEvent(QPaintEvent *event) {
    QMainWindow::paintEvent(event);
    if (!std::exchange(wasPainted_, true)) {
        QMetaObject::invokeMethod(this, &MainWindow::scan, Qt::QueuedConnection);
    }
}

void MainWindow::closeEvent(QCloseEvent *event) {
    if (!utilities_.closeAll()) {
        event->ignore();
        return;
    }
    utilities_.shutdownAll();
    scanner_->stop();
    settings::setWindowState(saveGeometry(), list_->headerState());
    event->accept();
    emit quitAgreed();
}

void MainWindow::scan() {
    scanError_.clear();
    model_->clear();
    scanner_->start(musicFolder_);
    updateContent();
}

void MainWindow::chooseFolder() {
    auto *dialog = new QFileDialog(this, translated("Choose the Music Folder"),
                                   QFile::decodeName(musicFolder_.c_str()));
    dialog->setObjectName(QStringLiteral("folderDialog"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(QFileDialog::Directory);
    dialog->setOption(QFileDialog::ShowDirsOnly);
    connect(dialog, &QFileDialog::fileSelected, this,
            [this](const QString &folder) { useFolder(QFile::encodeName(folder).toStdString()); });
    dialog->open();
}

void MainWindow::useFolder(const std::filesystem::path &folder) {
    musicFolder_ = folder;
    settings::setMusicFolder(folder);
    scan();
}

void MainWindow::showContextMenu(QPoint position) {
    auto *menu = new QMenu(list_);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addActions(sendActions_);
    menu->addSeparator();
    menu->addAction(selectAll_);
    menu->popup(list_->viewport()->mapToGlobal(position));
}

void MainWindow::showAbout() {
    auto *box = new QMessageBox(this);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setWindowTitle(translated("About Crate"));
    box->setIconPixmap(picture("crate").pixmap({64, 64}, devicePixelRatioF()));
    box->setText(translated("Crate %1").arg(QStringLiteral(CDBURNER_VERSION)));
    box->setInformativeText(
        translated("A music library with tools.\nFree software under the GNU General "
                   "Public License, version 2 or later."));
    box->open();
}

void MainWindow::updateContent() {
    const ListState state{scanner_->isRunning() || !wasPainted_,
                          QFile::decodeName(musicFolder_.c_str()),
                          scanError_,
                          model_->totalSongs(),
                          static_cast<std::size_t>(model_->rowCount()),
                          search_->text().trimmed()};
    const auto empty = emptyTextFor(state);
    if (empty) {
        emptyPage_->setText(*empty);
        pages_->setCurrentWidget(emptyPage_);
    } else {
        pages_->setCurrentWidget(list_);
    }
    busy_->setVisible(scanner_->isRunning());
    updateSummary();
}

void MainWindow::updateSummary() {
    const int selected = list_->selectedCount();
    if (selected > 0) {
        summary_->setText(selected == 1 ? translated("1 song selected")
                                        : translatedCount("%Ln songs selected", selected));
        return;
    }
    const int count = model_->rowCount();
    if (count == 0) {
        summary_->clear();
        return;
    }
    const QString songs = count == 1 ? translated("1 song") : translatedCount("%Ln songs", count);
    summary_->setText(translated("%1, %2").arg(songs, totalLengthText(model_->visibleLength())));
}

void MainWindow::updateSendActions() {
    const bool isAnySelected = list_->selectionModel()->hasSelection();
    for (QAction *action : std::as_const(sendActions_)) {
        action->setEnabled(isAnySelected);
    }
}

} // namespace crate
