// SPDX-License-Identifier: GPL-2.0-or-later
// How the window is built and its controls are wired.
#include "CDBurnerPlugin/VXCDBurnerMainWindowController.h"

#include "CDBurnerPlugin/AccessibleViews.h"
#include "CDBurnerPlugin/BlockedCloseRequest.h"
#include "CDBurnerPlugin/CapacityView.h"
#include "CDBurnerPlugin/DeleteButton.h"
#include "CDBurnerPlugin/DropFileList.h"
#include "CDBurnerPlugin/ErrorTipsView.h"
#include "CDBurnerPlugin/FilesTableModel.h"
#include "CDBurnerPlugin/Localization.h"
#include "CDBurnerPlugin/MainQueue.h"
#include "CDBurnerPlugin/MainWindow.h"
#include "CDBurnerPlugin/ResourceLocator.h"
#include "CDBurnerPlugin/UsageEvents.h"
#include "CDBurnerPlugin/VXHelpWindow.h"
#include "CDBurnerPlugin/VolumeNameEdit.h"
#include "ui_MainWindow.h"

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QThreadPool>
#include <QTimer>
#include <QToolButton>

#include <chrono>

namespace {

constexpr int deleteButtonSize = 18; // Until it is placed over a row for the first time.

/// A search for drives that takes longer is spoken of: a shorter one would only flicker.
constexpr std::chrono::milliseconds longSearch{400};

/// Has the global pool not count this thread of it while it waits: Qt paints large areas with the
/// pool's help, and with all its threads waiting for the main thread both would wait for ever.
class ThreadOutOfPool {
public:
    ThreadOutOfPool() { QThreadPool::globalInstance()->releaseThread(); }
    ~ThreadOutOfPool() { QThreadPool::globalInstance()->reserveThread(); }
    ThreadOutOfPool(const ThreadOutOfPool &) = delete;
    ThreadOutOfPool &operator=(const ThreadOutOfPool &) = delete;
};

} // namespace

MainWindow *VXCDBurnerMainWindowController::window() {
    if (_window.isNull() && !_isDetached) {
        installAccessibleViews();
        _window = new MainWindow;
        windowDidLoad();
    }
    return _window;
}

void VXCDBurnerMainWindowController::windowDidLoad() {
    takeOutlets();
    _window->setLayoutDirection(localizationDirection());
    _window->setWindowTitle(localizedString("CD Burner"));
    _txtNoneDevice->hide();
    _cdTypePopup->addItems({localizedString("Audio CD"), localizedString("Data CD")});
    startFirstEnumeration();
    tellOfLongSearch();
    _filesTableView->awakeFromNib();
    _filesTableView->registerForDraggedTypes({QLatin1String(fileNamesMimeType),
                                              QLatin1String(songListMimeType),
                                              QLatin1String(FilesTableView::rowsMimeType)});
    _filesTableView->setDelegate(this);
    _progressWindow->setMyDelegate(this);
    _blockedCloseRequest = std::make_unique<BlockedCloseRequest>(_window, _progressWindow);
    _txtDragHere->setText(localizedString("Drag music files here"));
    _dragImageView->awakeFromNib();
    _dragImageView->setDelegate(this);
    createDeleteButton();
    setUpTexts();
    setUpLook();
    setUpActions();
}

void VXCDBurnerMainWindowController::takeOutlets() {
    Ui::MainWindow ui;
    ui.setupUi(_window);
    _devicePopup = ui._devicePopup;
    _txtNoneDevice = ui._txtNoneDevice;
    _volumeName = ui._volumeName;
    _discSetBox = ui._discSetBox;
    _discSetStack = ui._discSetStack;
    _filesTableView = ui._filesTableView;
    _errorTipsView = ui._errorTipsView;
    _discSetView = ui._discSetView;
    _cdTypePopup = ui._cdTypePopup;
    _icon4CDType = ui._icon4CDType;
    _txtUsedCapacity = ui._txtUsedCapacity;
    _txtRetainedCapacity = ui._txtRetainedCapacity;
    _capacityView = ui._capacityView;
    _txtDeviceName = ui._txtDeviceName;
    _txtVolumeName = ui._txtVolumeName;
    _dragImageView = ui._dragImageView;
    _txtDragHere = ui._txtDragHere;
    _btnBurn = ui._btnBurn;
    _btnEject = ui._btnEject;
    _btnClear = ui._btnClear;
    _btnHelp = ui._btnHelp;
    _helpWindow = new VXHelpWindow(_window);
    _progressWindow = new ProgressWindow(_window);
}

void VXCDBurnerMainWindowController::createDeleteButton() {
    _btnDelete = new DeleteButton(
        ResourceLocator::imageNamed(QStringLiteral("button_normal_delete")),
        ResourceLocator::imageNamed(QStringLiteral("button_down_delete")), _window);
    _btnDelete->setObjectName(QStringLiteral("_btnDelete"));
    _btnDelete->setGeometry(0, 0, deleteButtonSize, deleteButtonSize);
    _btnDelete->setToolTip(localizedString("Remove from the list"));
    _btnDelete->setAccessibleName(_btnDelete->toolTip());
    _btnDelete->hide();
}

void VXCDBurnerMainWindowController::startFirstEnumeration() {
    // Kept until the set-up step has run, even if the window is closed meanwhile. The reference
    // that keeps it never leaves the main thread, so that the worker cannot hold the last one.
    _keptForEnumeration = shared_from_this();
    QThreadPool::globalInstance()->start([controller = weak_from_this()] {
        const ThreadOutOfPool waiting;
        const std::vector<std::string> names = ScorcherDevice::devices();
        MainQueue::sync([&controller, &names] {
            if (const auto self = controller.lock()) {
                self->_keptForEnumeration.reset();
                self->setUpDrives(names);
            }
        });
    });
}

void VXCDBurnerMainWindowController::tellOfLongSearch() {
    QTimer::singleShot(longSearch, &_connections, [this] {
        if (!_devicesAreKnown) {
            showErrorTips("Looking for disc drives...");
        }
    });
}

void VXCDBurnerMainWindowController::setUpDrives(const std::vector<std::string> &deviceNames) {
    _devicesAreKnown = true;
    if (!deviceNames.empty()) {
        _txtNoneDevice->hide();
        _devicePopup->show();
        for (const std::string &deviceName : deviceNames) {
            addDeviceItem(deviceName);
        }
        setSelectedDevice(deviceNames.front());
    } else {
        _devicePopup->hide();
        _txtNoneDevice->setText(localizedString("Not found a disc drive."));
        _txtNoneDevice->show();
        _errorTipsView->setErrorTips(localizedString("You should connect a disc drive!"));
        setSelectedDevice({});
        sendUsageEvent(usage_event::noDrive);
    }
    if (_selectedDevice->isCDDisc() && _selectedDevice->isDiscBlank()) {
        sendUsageEvent(usage_event::blankDisc);
    }
    updateDeviceStatus();
    updateUI();
}

void VXCDBurnerMainWindowController::setUpTexts() {
    _txtDeviceName->setText(localizedString("Disc &drive:"));
    _txtVolumeName->setText(localizedString("Volume &name:"));
    _btnEject->setText(localizedString("&Eject"));
    _btnClear->setText(localizedString("C&lear"));
    _btnBurn->setText(localizedString("&Burn"));
    _btnEject->setToolTip(localizedString("Eject the disc from the drive"));
    _btnClear->setToolTip(localizedString("Remove everything from the list"));
    _btnBurn->setToolTip(localizedString("Burn the list to the disc"));
    _cdTypePopup->setToolTip(localizedString("The type of disc to burn"));
    _cdTypePopup->setAccessibleName(localizedString("Disc type"));
    // Where a popup's own name is what it reads, this is what labels it.
    _icon4CDType->setBuddy(_cdTypePopup);
    _icon4CDType->setAccessibleName(localizedString("Disc type"));
    _dragImageView->setAccessibleName(localizedString("Drag music files here"));
    _btnHelp->setToolTip(localizedString("Help"));
    _btnHelp->setAccessibleName(localizedString("Help"));
    _filesTableView->setAccessibleName(localizedString("Burn list"));
    // The list begins with songs. Its titles are there before the drives are.
    _filesTableView->setHeaderTitle(QLatin1String(FilesTableModel::filenameColumn),
                                    localizedString("File"));
    _filesTableView->setHeaderTitle(QLatin1String(FilesTableModel::fileinfoColumn),
                                    localizedString("Time"));
    _capacityView->setAccessibleName(localizedString("Used capacity"));
}

void VXCDBurnerMainWindowController::setUpActions() {
    const auto onClick = [this](QAbstractButton *button, auto action) {
        QObject::connect(button, &QAbstractButton::clicked, &_connections,
                         [this, action] { (this->*action)(); });
    };
    using Controller = VXCDBurnerMainWindowController;
    onClick(_btnBurn, &Controller::burn);
    onClick(_btnEject, &Controller::eject);
    onClick(_btnClear, &Controller::clearlist);
    onClick(_btnHelp, &Controller::btnHelpDidClicked);
    onClick(_btnDelete, &Controller::btnDeleteDidClicked);
    // What the user chooses, and that alone: the popups are also changed from here.
    QObject::connect(_devicePopup, &QComboBox::activated, &_connections,
                     [this] { selectDevice(); });
    QObject::connect(_cdTypePopup, &QComboBox::activated, &_connections,
                     [this] { selectCDType(); });
    // Return in the field is the window's default button, as in a dialog.
    QObject::connect(_volumeName, &QLineEdit::returnPressed, &_connections,
                     [this] { _btnBurn->click(); });
}
