// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

class QMessageBox;
class QWidget;

/// What an alert says and offers, translated already.
struct AlertTexts {
    QString message;
    QString informative;
    QString defaultButton;
    QString alternateButton; ///< Empty for an alert with one button.
};

/// An application-modal alert with the information icon. Return is the default button; Escape and
/// the close box are the alternate one (the only one, where there is no other). The caller runs it
/// with exec() and deletes it; `parent` owns it meanwhile, and may be destroyed while it runs.
QMessageBox *makeAlert(QWidget *parent, const AlertTexts &texts);
