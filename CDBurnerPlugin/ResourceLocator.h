// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QIcon>
#include <QImage>
#include <QString>

/// A picture as the tool carries it: one pixel a point, and the same with two where there is one.
/// Either may be null. Plain QImages: these may be kept in statics, which outlive the application.
struct ResourceImage {
    QImage at1x;
    QImage at2x; ///< Its device pixel ratio is 2.

    bool isNull() const { return at1x.isNull() && at2x.isNull(); }

    /// The picture to draw on a device of this pixel ratio: the 2x one above 1, else the 1x one;
    /// the other one where that is missing.
    const QImage &forRatio(qreal devicePixelRatio) const;
};

/// Finds and loads the tool's resources, which are compiled into it. Main thread.
class ResourceLocator {
public:
    ResourceLocator() = delete;

    /// The path of a resource by name and type ("icon_data_cd", "png"); empty if there is none.
    static QString pathForResource(const QString &name, const QString &type);

    /// The same by its full file name ("icon_data_cd.png").
    static QString pathForImageResource(const QString &fileName);

    /// Reads a PNG from a path that one of the above gave, and its "@2x" sibling. Null pictures for
    /// an empty path and a file that is no picture. Counted.
    static ResourceImage image(const QString &path);

    /// image(pathForResource(name, "png")).
    static ResourceImage imageNamed(const QString &name);

    /// The picture as an icon, with its drawings for other sizes where there are some ("name_16" is
    /// 16 points wide). A null icon if it is missing.
    static QIcon icon(const QString &name);

    /// The folder that all of this looks in.
    static QString folder();

    /// Looks elsewhere from now on, so that a test can leave a picture out; an empty path is the
    /// tool's own resources again.
    static void setFolder(const QString &folder);

    /// How often image() was asked to read this file ("image_warning.png") since the process
    /// started.
    static int loadCount(const QString &fileName);
};
