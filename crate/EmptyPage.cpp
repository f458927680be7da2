// SPDX-License-Identifier: GPL-2.0-or-later
#include "crate/EmptyPage.h"

#include "crate/Pictures.h"
#include "crate/Translation.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace crate {

namespace {

constexpr int pictureSize = 96;
constexpr int textWidth = 420;

QLabel *centredLabel(QWidget *parent, const char *name) {
    auto *label = new QLabel(parent);
    label->setObjectName(QLatin1String(name));
    label->setAlignment(Qt::AlignCenter);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
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
        return EmptyText{
            translated("The music folder cannot be read"),
            translated("%1: %2. Choose another folder.").arg(state.folder, state.error), true};
    }
    return EmptyText{translated("No songs here yet"),
                     translated("Put music into %1, or choose another folder.").arg(state.folder),
                     true};
}

EmptyPage::EmptyPage(QWidget *parent)
    : QWidget(parent),
      heading_(centredLabel(this, "emptyHeading")),
      text_(centredLabel(this, "emptyText")),
      choose_(new QPushButton(translated("Choose Folder…"), this)) {
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

    // A column of fixed width, in which the texts get the height that their lines need.
    auto *column = new QWidget(this);
    column->setFixedWidth(textWidth);
    auto *rows = new QVBoxLayout(column);
    rows->addStretch(2);
    rows->addWidget(image, 0, Qt::AlignHCenter);
    rows->addSpacing(12);
    rows->addWidget(heading_);
    rows->addWidget(text_);
    rows->addSpacing(12);
    rows->addWidget(choose_, 0, Qt::AlignHCenter);
    rows->addStretch(3);
    auto *layout = new QHBoxLayout(this);
    layout->addStretch();
    layout->addWidget(column);
    layout->addStretch();
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
