// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "crate/SongScanner.h"
#include "crate/Utilities.h"

#include <QMainWindow>

#include <filesystem>

class QAction;
class QLabel;
class QLineEdit;
class QMenu;
class QProgressBar;
class QStackedWidget;

namespace crate {

class EmptyPage;
class MessageBar;
class SongListView;
class SongModel;

/// The host's window: the tools on top, the songs below. Opens tools, sends them songs, and when it
/// is closed closes their windows first, each of which may refuse. Main thread.
class MainWindow : public QMainWindow {
    Q_OBJECT

public:
    /// `utilities` must outlive the window. Nothing is read from `musicFolder` before the window
    /// has been painted for the first time.
    MainWindow(Utilities &utilities, std::filesystem::path musicFolder);
    ~MainWindow() override;

    void openTool(std::size_t index);
    /// Opens the tool and passes the files; says so when the tool does not take them.
    void sendToTool(std::size_t index, const SongList &files);
    /// Shows a text about something that did not work, until the user has closed it.
    void showMessage(const QString &text);

signals:
    /// The window has been closed and every tool with it.
    void quitAgreed();

protected:
    void closeEvent(QCloseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void buildContent();
    QWidget *buildFooter();
    void buildToolBar();
    void buildMenus();
    /// Adds "Send to …" for each tool, enabled while songs are selected.
    void buildSendActions();
    void connectLibrary();

    void scan();
    void chooseFolder();
    void useFolder(const std::filesystem::path &folder);
    void showContextMenu(QPoint position);
    void showAbout();

    void updateContent();
    void updateSummary();
    void updateSendActions();

    Utilities &utilities_;
    std::filesystem::path musicFolder_;
    QString scanError_;
    bool wasPainted_ = false;

    SongModel *model_;
    SongScanner *scanner_;
    SongListView *list_ = nullptr;
    EmptyPage *emptyPage_ = nullptr;
    QStackedWidget *pages_ = nullptr;
    MessageBar *messages_ = nullptr;
    QLineEdit *search_ = nullptr;
    QLabel *summary_ = nullptr;
    QProgressBar *busy_ = nullptr;
    QList<QAction *> sendActions_;
    QAction *selectAll_ = nullptr;
};

} // namespace crate
