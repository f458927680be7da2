// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "CDBurnerPlugin/ResourceLocator.h"

#include <QAbstractButton>

#include <cstdint>

/// The small picture button that floats over a row of the list. Draws no border, and its pictures
/// in their own size in its middle: one, and another while it is pressed. Never takes the focus.
class DeleteButton final : public QAbstractButton {
    Q_OBJECT

public:
    DeleteButton(ResourceImage image, ResourceImage alternateImage, QWidget *parent);

    /// The row it serves, from 0.
    std::int64_t tag() const { return tag_; }
    void setTag(std::int64_t tag) { tag_ = tag; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    ResourceImage image_;
    ResourceImage alternateImage_;
    std::int64_t tag_ = 0;
};
