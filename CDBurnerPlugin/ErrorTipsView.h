// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>
#include <QWidget>

#include <cstdint>

/// Where the sign and the text of the strip stand: points, y upwards, in a left-to-right layout.
struct ErrorTipsLayout {
    QRectF icon;
    QRectF text;
};

/// Sign, gap and text are centred together; the text's box ends at the right edge. `textWidth` is
/// the width the whole text would like to have.
ErrorTipsLayout errorTipsLayout(const QRectF &bounds, double textWidth);

/// A warning sign and one line of text, which tells why the disc cannot be burned. Draws no
/// background and takes no input. Main thread.
class ErrorTipsView : public QWidget {
    Q_OBJECT

public:
    explicit ErrorTipsView(QWidget *parent = nullptr);

    /// Replaces the text and repaints. A null string is no text at all and is ignored.
    void setErrorTips(const QString &tips);
    const QString &errorTips() const { return _errorTips; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    /// Draws sign and text. `scale` is the painter's device pixels a point.
    void drawRect(QPainter &painter, double scale) const;

    /// How often a repaint was asked for.
    std::uint64_t displayRequests() const { return displayRequests_; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QFont textFont() const;

    QString _errorTips;
    std::uint64_t displayRequests_ = 0;
};
