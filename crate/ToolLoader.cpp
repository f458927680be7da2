// SPDX-License-Identifier: GPL-2.0-or-later
#include "crate/ToolLoader.h"

#include "crate/Log.h"
#include "crate/Translation.h"

#include <QCoreApplication>
#include <QFile>
#include <QJsonObject>
#include <QLibrary>
#include <QPluginLoader>
#include <QSet>

#include <algorithm>

namespace crate {

namespace {

std::vector<std::filesystem::path> librariesIn(const std::filesystem::path &folder) {
    std::vector<std::filesystem::path> files;
    std::error_code error;
    for (std::filesystem::directory_iterator at(folder, error), end; !error && at != end;
         at.increment(error)) {
        std::error_code ignored;
        const bool isLibrary = QLibrary::isLibrary(QFile::decodeName(at->path().c_str()));
        if (isLibrary && at->is_regular_file(ignored)) {
            files.push_back(at->path());
        }
    }
    std::sort(files.begin(), files.end());
    return files;
}

void refuse(ToolEntry &entry, ToolState state, const QString &error) {
    entry.state = state;
    entry.error = error;
    qCWarning(log).noquote() << "The tool" << entry.file.c_str() << "is not used:" << error;
}

/// Whether the metadata, which needs no code of the library to run, is that of a tool of ours.
bool checkMetadata(ToolEntry &entry, const QPluginLoader &loader) {
    const QJsonObject whole = loader.metaData();
    if (whole.isEmpty()) {
        refuse(entry, ToolState::notAPlugin, translated("The file is not a plug-in."));
        return false;
    }
    if (whole[QLatin1String("IID")].toString() != QLatin1String(VXUtilitiesToolFactory_iid)) {
        refuse(entry, ToolState::otherInterface,
               translated("The plug-in belongs to another program."));
        return false;
    }
    const QJsonObject own = whole[QLatin1String("MetaData")].toObject();
    entry.id = own[QLatin1String("id")].toString();
    entry.version = own[QLatin1String("version")].toString();
    const QJsonValue protocol = own[QLatin1String("protocolVersion")];
    if (!protocol.isDouble() || protocol.toDouble() != utilitiesToolProtocolVersion) {
        refuse(entry, ToolState::otherProtocol,
               translated("The tool was made for another version of Crate."));
        return false;
    }
    if (entry.id.isEmpty() || entry.version.isEmpty()) {
        refuse(entry, ToolState::badMetadata, translated("The tool does not say what it is."));
        return false;
    }
    return true;
}

void load(ToolEntry &entry, QPluginLoader &loader, VXUtilitiesToolContext *context) {
    // All symbols at once: a library that lacks one is refused here, not ended by the system in the
    // middle of a burn.
    loader.setLoadHints(QLibrary::ResolveAllSymbolsHint | QLibrary::PreventUnloadHint);
    if (!loader.load()) {
        refuse(entry, ToolState::notLoadable,
               translated("The tool cannot be loaded: %1").arg(loader.errorString()));
        return;
    }
    auto *factory = qobject_cast<VXUtilitiesToolFactory *>(loader.instance());
    if (factory != nullptr) {
        entry.tool = factory->initWithUtilitiesToolContext(context);
    }
    if (entry.tool == nullptr) {
        refuse(entry, ToolState::badRootObject,
               translated("The plug-in has no tool in it, although it says so."));
        return;
    }
    entry.state = ToolState::loaded;
}

} // namespace

std::filesystem::path toolFolderFor(const std::filesystem::path &programFolder) {
    return programFolder.parent_path() / "lib" / "crate" / "tools";
}

std::vector<ToolEntry> loadTools(const std::filesystem::path &folder,
                                 VXUtilitiesToolContext *context) {
    std::vector<ToolEntry> entries;
    QSet<QString> ids;
    for (const std::filesystem::path &file : librariesIn(folder)) {
        ToolEntry entry;
        entry.file = file;
        QPluginLoader loader(QFile::decodeName(file.c_str()));
        if (checkMetadata(entry, loader)) {
            if (ids.contains(entry.id)) {
                refuse(entry, ToolState::duplicate,
                       translated("Another tool has the same name, “%1”.").arg(entry.id));
            } else {
                load(entry, loader, context);
                if (entry.state == ToolState::loaded) {
                    ids.insert(entry.id);
                }
            }
        }
        entries.push_back(std::move(entry));
    }
    return entries;
}

} // namespace crate
