// SPDX-License-Identifier: GPL-2.0-or-later
#include "CDBurnerPlugin/Alert.h"

#include "CDBurnerPlugin/Localization.h"

#include <QMessageBox>
#include <QPushButton>

QMessageBox *makeAlert(QWidget *parent, const AlertTexts &texts) {
    auto *const alert = new QMessageBox(parent);
    alert->setLayoutDirection(localizationDirection());
    alert->setWindowModality(Qt::ApplicationModal);
    alert->setWindowTitle(localizedString("CD Burner"));
    alert->setIcon(QMessageBox::Information);
    // The texts carry names of files and discs, which may look like markup.
    alert->setTextFormat(Qt::PlainText);
    alert->setText(texts.message);
    alert->setInformativeText(texts.informative);
    QPushButton *const yes = alert->addButton(texts.defaultButton, QMessageBox::AcceptRole);
    alert->setDefaultButton(yes);
    alert->setEscapeButton(yes);
    if (!texts.alternateButton.isEmpty()) {
        alert->setEscapeButton(alert->addButton(texts.alternateButton, QMessageBox::RejectRole));
    }
    return alert;
}
