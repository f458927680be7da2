// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "CDBurnerPlugin/ResourceLocator.h"
#include "engine/DelegateSlot.h"
#include "host/SongList.h"

#include <QWidget>

class QMimeData;

/// Takes what is dropped on the picture. Not owned by it.
class VXDragImageViewDelegate : public DetachingDelegate<VXDragImageViewDelegate> {
public:
    virtual ~VXDragImageViewDelegate() = default;

    /// Files or songs to add, at least one. False tells the drag's source that they were refused.
    virtual bool filesDidDragHere(const SongList & /*files*/) { return false; }
};

/// The picture in the middle of the empty list that invites the user to drop music. Takes local
/// files and the host's songs and hands them to its delegate; rows of the list itself are not
/// taken. Main thread.
class VXDragImageView : public QWidget {
    Q_OBJECT

public:
    explicit VXDragImageView(QWidget *parent = nullptr);

    VXDragImageViewDelegate *delegate() const { return delegate_.get(); }
    void setDelegate(VXDragImageViewDelegate *delegate) { delegate_.set(delegate); }

    /// Called once the window's form is built: from then on it takes drops.
    void awakeFromNib();

    /// Copy for data that files or songs may come from, else ignore.
    static Qt::DropAction draggingEntered(const QMimeData &mime);
    /// True if the delegate took the drop's files.
    bool performDragOperation(const QMimeData &mime);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }
    void drawRect(QPainter &painter, double scale) const;

protected:
    void paintEvent(QPaintEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void setHighlighted(bool isHighlighted);

    DelegateSlot<VXDragImageViewDelegate> delegate_;
    ResourceImage image_;
    bool isHighlighted_ = false; // Something that would be taken is held over the picture.
};
