// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "CDBurnerPlugin/FilesTableView.h"
#include "CDBurnerPlugin/ProgressWindow.h"
#include "CDBurnerPlugin/VXDragImageView.h"
#include "engine/ScorchDelegate.h"
#include "engine/Scorcher.h"
#include "engine/ScorcherDevice.h"
#include "engine/ScorcherDeviceDelegate.h"
#include "host/SongList.h"

#include <QObject>
#include <QPointer>
#include <QString>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

class BlockedCloseRequest;
class CapacityView;
class DeleteButton;
class ErrorTipsView;
class MainWindow;
class QComboBox;
class QFrame;
class QLabel;
class QMessageBox;
class QPushButton;
class QStackedWidget;
class QToolButton;
class VolumeNameEdit;
class VXCDBurner;
class VXHelpWindow;
struct AlertTexts;

/// The logic of the tool's one window: follows the drives and the disc, shows the list of the
/// current burner and how much of the disc it fills, hands files to the burner, and follows a burn.
///
/// Owns the window, the handle of the selected drive, and shares the two burners with the engine;
/// it is the delegate of all of them. It keeps nothing of a list or a drive: each change is asked
/// of the engine and shown when the engine reports it.
///
/// Used once: a tool that is opened again makes a new one. Main thread only, but for the callbacks
/// that say otherwise. Failures arrive as callbacks and are shown as alerts or as tips.
class VXCDBurnerMainWindowController final
    : public std::enable_shared_from_this<VXCDBurnerMainWindowController>,
      public ScorchDelegate,
      public ScorcherDeviceDelegate,
      public FilesTableViewDelegate,
      public ProgressWindowDelegate,
      public VXDragImageViewDelegate {
public:
    /// Takes the engine's two burners and becomes their delegate. Audio CD is the current type.
    static std::shared_ptr<VXCDBurnerMainWindowController> init();
    ~VXCDBurnerMainWindowController() override;

    /// Not owned.
    VXCDBurner *delegate() const { return _delegate; }
    void setDelegate(VXCDBurner *delegate) { _delegate = delegate; }

    /// The window, hidden at first; the first call builds it and starts the search for drives.
    MainWindow *window();

    /// May the window be closed now? While the progress sheet is up this asks what the sheet's
    /// button asks, and stops the work if the answer is yes.
    bool shouldClose();

    /// Ends this controller's part: hides the window, takes itself off burners and drive and
    /// dismisses its alerts, so that nothing reaches the user or the engine from here any more,
    /// even if a reference to it lives on for a moment. What the engine is doing goes on.
    void detach();

    // Adding files.
    bool filesDidDragHere(const SongList &files) override;
    void addFiles(const SongList &files);

    // Actions of the controls.
    void selectDevice();
    void selectCDType();
    /// Makes the other burner the current one if it is that which works: a window that is opened
    /// while it does starts with the audio burner, and its Cancel, and the clearing of a finished
    /// list, must reach the list that burns.
    void followBusyBurner();
    void eject();
    void burn();
    void clearlist();
    void btnDeleteDidClicked();
    void btnHelpDidClicked();

    // State of the window.
    void updateDeviceStatus();
    void updateUI();
    bool isDiscSupported() const;
    bool isBurnSupported() const;

    // Capacity, in CD frames for audio and bytes for data.
    std::int64_t getTotalCapacity() const;
    QString getUsedCapacityString() const;
    /// These two colour the label that their result is for.
    QString getRetainedCapacityString();
    QString getBeyondCapacityString();
    void updateCapacity();
    /// True if the list does not fit, which the user has then been told.
    bool alertIfZeroStorage();

    // ScorcherDeviceDelegate
    void deviceStatusDidChanged() override;
    void deviceDidDisappeared(const std::string &deviceName) override;
    void deviceDidAppeared(const std::string &deviceName) override;

    // ScorchDelegate, the list
    void allFilesDidCleared() override;
    void addFilesProgressDidStarted() override;
    void addFilesProgressDidCanceled() override;
    void addFilesProgressDidChangedIndexOf(const std::string &name, std::int64_t index,
                                           std::int64_t count) override;
    /// Any thread: the refresh is carried over to the main thread.
    void fileDidAdded(const BurnItemRef &item) override;
    void addFilesProgressDidEnd(const AddFilesResult &result) override;
    void burnItemDidDelete(const BurnItemRef &item) override;
    void burnItemDidSorted() override;
    void burnItemsDidDelete(const std::vector<BurnItemRef> &items) override;

    // ScorchDelegate, the burn
    void burnProgressDidStarted() override;
    void burnProgressDidError(const ScorchError &error) override;
    void burnProgressIsPreparing() override;
    void burnProgressDidCanceled() override;
    void burnProgressDidChanagedLefttime(double fraction, std::uint64_t lefttime) override;
    void burnProgressIsOpeningTrackOf(std::uint64_t track, std::uint64_t count) override;
    void burnProgressIsWriteingTrackOf(std::uint64_t track, std::uint64_t count) override;
    void burnProgressDidCloseTrackOf(std::uint64_t track, std::uint64_t count) override;
    void burnProgressDidCloseSession() override;
    void burnProgressIsFinishing() override;
    void burnProgressIsVerifying() override;
    void burnProgressDidDone() override;

    // ProgressWindowDelegate
    void progressDidCancel(qint64 type) override;
    void progressDidOK(qint64 type) override;

    // FilesTableViewDelegate
    void tableViewMouseOverRow(FilesTableView *table, qint64 row) override;
    void tableViewWillDeleteRowIndexes(FilesTableView *table, const IndexSet &rows) override;
    void tableViewMoveRowIndexesTo(FilesTableView *table, const IndexSet &rows,
                                   qint64 destination) override;
    bool tableViewWriteRowsWithIndexesToPasteboard(FilesTableView *table, const IndexSet &rows,
                                                   QMimeData *pasteboard) override;
    Qt::DropAction tableViewValidateDrop(FilesTableView *table, const QMimeData &data) override;
    bool tableViewAcceptDropRow(FilesTableView *table, const QMimeData &data, qint64 row) override;

private:
    VXCDBurnerMainWindowController();

    // Set-up.
    void windowDidLoad();
    void takeOutlets();
    void setUpTexts();
    void setUpLook();
    void setUpActions();
    void createDeleteButton();
    void startFirstEnumeration();
    void tellOfLongSearch();
    void setUpDrives(const std::vector<std::string> &deviceNames);

    // The drive.
    std::vector<std::string> deviceNames() const;
    void addDeviceItem(const std::string &deviceName);
    int indexOfDeviceItem(const std::string &deviceName) const;
    void setSelectedDevice(const std::string &deviceName);
    void showErrorTips(const char *key);
    /// Says so where the user has pressed, if the disc did not come out.
    void tellOfFailedEject();
    void showTypeIcon();

    // The list.
    BurnItemRef itemAtRow(std::int64_t row) const;
    void moveRows(FilesTableView *table, const IndexSet &rows, std::int64_t destination);

    bool isAudio() const { return _scorcher == _audioCDBurner.get(); }
    std::int64_t numberOfItems() const;
    QString formattedAmount(std::int64_t amount) const;
    void setRetainedColour(const QColor &colour);

    // The sheet and the alerts.
    QString burningName() const;
    void updateStage(const char *tipsKey);
    void updateTrackStage(const char *tipsKey, std::uint64_t track, std::uint64_t count);
    bool cancelWorkOfSheet(qint64 type);
    bool runAlert(const AlertTexts &texts, QPointer<QMessageBox> &running);
    void showError(const QString &description);
    void dismissCancelAlert();

    Scorcher *_scorcher = nullptr;
    std::shared_ptr<Scorcher> _audioCDBurner;
    std::shared_ptr<Scorcher> _dataCDBurner;
    std::unique_ptr<ScorcherDevice> _selectedDevice;

    // Widgets of the form, owned by the window.
    QComboBox *_devicePopup = nullptr;
    QLabel *_txtNoneDevice = nullptr;
    VolumeNameEdit *_volumeName = nullptr;
    QFrame *_discSetBox = nullptr;
    QStackedWidget *_discSetStack = nullptr; // The box's exchanged content.
    FilesTableView *_filesTableView = nullptr;
    ProgressWindow *_progressWindow = nullptr;
    ErrorTipsView *_errorTipsView = nullptr;
    QWidget *_discSetView = nullptr;
    QComboBox *_cdTypePopup = nullptr;
    QLabel *_icon4CDType = nullptr;
    QLabel *_txtUsedCapacity = nullptr;
    QLabel *_txtRetainedCapacity = nullptr;
    CapacityView *_capacityView = nullptr;
    VXHelpWindow *_helpWindow = nullptr;
    QLabel *_txtDeviceName = nullptr;
    QLabel *_txtVolumeName = nullptr;
    VXDragImageView *_dragImageView = nullptr;
    QLabel *_txtDragHere = nullptr;
    DeleteButton *_btnDelete = nullptr;
    QPushButton *_btnBurn = nullptr;
    QPushButton *_btnEject = nullptr;
    QPushButton *_btnClear = nullptr;
    QToolButton *_btnHelp = nullptr;

    VXCDBurner *_delegate = nullptr;

    QPointer<MainWindow> _window;
    std::unique_ptr<BlockedCloseRequest> _blockedCloseRequest;
    QObject _connections; // The controls' connections end with it.
    std::shared_ptr<VXCDBurnerMainWindowController> _keptForEnumeration;
    bool _devicesAreKnown = false;
    bool _isEjecting = false; // Asked for, and the drive has not said how it went.
    bool _isDetached = false;
    QPointer<QMessageBox> _cancelAlert;
    QPointer<QMessageBox> _storageAlert;
    QPointer<QMessageBox> _errorAlert;
};
