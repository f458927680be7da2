// SPDX-License-Identifier: GPL-2.0-or-later
#include "CDBurnerPlugin/ResourceLocator.h"

#include <QFileInfo>
#include <QHash>
#include <QPixmap>

// The macro wants to stand outside any namespace. It is what keeps the linker from dropping the
// resources of a static library.
static void initialiseResources() {
    Q_INIT_RESOURCE(cdburner);
}

namespace {

struct Locator {
    QString folder;
    QHash<QString, int> loads;
};

Locator &locator() {
    static Locator instance;
    return instance;
}

} // namespace

const QImage &ResourceImage::forRatio(qreal devicePixelRatio) const {
    const bool wants2x = devicePixelRatio > 1.0;
    if (wants2x) {
        return at2x.isNull() ? at1x : at2x;
    }
    return at1x.isNull() ? at2x : at1x;
}

QString ResourceLocator::folder() {
    if (!locator().folder.isEmpty()) {
        return locator().folder;
    }
    static const bool isInitialised = (initialiseResources(), true);
    Q_UNUSED(isInitialised)
    return QStringLiteral(":/cdburner");
}

void ResourceLocator::setFolder(const QString &folder) {
    locator().folder = folder;
}

QString ResourceLocator::pathForResource(const QString &name, const QString &type) {
    return pathForImageResource(name + u'.' + type);
}

QString ResourceLocator::pathForImageResource(const QString &fileName) {
    QString path = folder() + u'/' + fileName;
    return QFileInfo::exists(path) ? path : QString();
}

ResourceImage ResourceLocator::image(const QString &path) {
    if (path.isEmpty()) {
        return {};
    }
    const QFileInfo file(path);
    ++locator().loads[file.fileName()];
    const QString path2x =
        file.path() + u'/' + file.completeBaseName() + QStringLiteral("@2x.") + file.suffix();
    ResourceImage image = {QImage(path), QImage(path2x)};
    if (!image.at1x.isNull()) {
        image.at1x.setDevicePixelRatio(1.0);
    }
    if (!image.at2x.isNull()) {
        image.at2x.setDevicePixelRatio(2.0);
    }
    return image;
}

ResourceImage ResourceLocator::imageNamed(const QString &name) {
    return image(pathForResource(name, QStringLiteral("png")));
}

QIcon ResourceLocator::icon(const QString &name) {
    QIcon icon;
    const ResourceImage picture = imageNamed(name);
    for (const QImage &image : {picture.at1x, picture.at2x}) {
        if (!image.isNull()) {
            icon.addPixmap(QPixmap::fromImage(image));
        }
    }
    for (const int size : {16, 24, 32, 64, 128, 256}) {
        const QString path =
            pathForResource(name + u'_' + QString::number(size), QStringLiteral("png"));
        if (!path.isEmpty()) {
            icon.addFile(path, QSize(size, size)); // Read when it is asked for.
        }
    }
    return icon;
}

int ResourceLocator::loadCount(const QString &fileName) {
    return locator().loads.value(fileName);
}
