// SPDX-License-Identifier: GPL-2.0-or-later
#include "crate/EmptyPage.h"

#include "crate/Pictures.h"

#include <QCoreApplication>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace crate {

namespace {

constexpr int pictureSize = 96;
constexpr int textWidth = 420;

QString translated(const char *text) {
    return QCoreApplication::translate("EmptyPage", text);
}

QLabel *centredLabel(QWidget *parent, const char *name) {
    auto *label = new QLabel(parent);
    label->setObjectName(QLatin1String(name));
    label->setAlignment(Qt::AlignCenter);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setFixedWidth(textWidth);
    return label;
}

} // namespace

std::optional<EmptyText> emptyTextFor(const ListState &state) {
    if (state.visibleSongs > 0) {
        return std::nullopt;
    }
    if (state.totalSongs > 0) {
        return EmptyText{translated("No song matches “%1”").arg(state.search),
                         translated("Titles, artists, albums and file names are searched."), false};
    }
    if (state.isScanning) {
        return EmptyText{translated("Looking for songs…"), state.folder, false};
    }
    if (!state.error.isEmpty()) {
        return EmptyText{translated("The music folder cannot be read"),
                         translated("%1: %2. Choose the folder that your music is in.")
                             .arg(state.folder, state.error),
                         true};
    }
    return EmptyText{translated("No songs here yet"),
                     translated("Put music into %1, or choose the folder that your music is in.")
                         .arg(state.folder),
                     true};
}

EmptyPage::EmptyPage(QWidget *parent)
    : QWidget(parent),
      heading_(centredLabel(this, "emptyHeading")),
      text_(centredLabel(this, "emptyText")),
      choose_(new QPushButton(tr("Choose Folder…"), this)) {
    setBackgroundRole(QPalette::Base);
    setAutoFillBackground(true);
    auto *image = new QLabel(this);
    image->setPixmap(picture("no_songs").pixmap({pictureSize, pictureSize}, devicePixelRatioF()));
    QFont font = heading_->font();
    font.setPointSizeF(font.pointSizeF() * 1.4);
    font.setWeight(QFont::DemiBold);
    heading_->setFont(font);
    choose_->setObjectName(QStringLiteral("emptyChoose"));
    connect(choose_, &QPushButton::clicked, this, &EmptyPage::folderWanted);

    auto *layout = new QVBoxLayout(this);
    layout->addStretch(2);
    layout->addWidget(image, 0, Qt::AlignHCenter);
    layout->addSpacing(12);
    layout->addWidget(heading_, 0, Qt::AlignHCenter);
    layout->addWidget(text_, 0, Qt::AlignHCenter);
    layout->addSpacing(12);
    layout->addWidget(choose_, 0, Qt::AlignHCenter);
    layout->addStretch(3);
}

void EmptyPage::setText(const EmptyText &text) {
    if (text == shown_) {
        return;
    }
    shown_ = text;
    heading_->setText(text.heading);
    text_->setText(text.text);
    choose_->setVisible(text.offersFolder);
}

} // namespace crate
