// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "crate/ToolLoader.h"

#include <QCloseEvent>
#include <QWidget>

#include <memory>
#include <utility>
#include <vector>

/// What a test sees of a FakeTool after it was handed to the host.
struct FakeToolRecord {
    int startups = 0;
    int shutdowns = 0;
    int closes = 0;
    std::vector<SongList> files;
    bool isWindowShown = false;

    bool refusesClose = false;
    bool refusesFiles = false;
    /// As a tool does whose user closes its window: it is gone when close returns.
    bool destroysWindowOnClose = true;
};

/// A tool that does as it is told by its record, which outlives it.
class FakeTool : public VXUtilitiesTool {
public:
    FakeTool(QString name, FakeToolRecord &record) : name_(std::move(name)), record_(record) {}

    QString toolName() const override { return name_; }
    QString localizedToolName() const override { return name_ + QStringLiteral(" (local)"); }
    QIcon icon() const override { return {}; }
    qint64 startup() override { return startupWith({}); }
    qint64 startupWith(const QVariant & /*argument*/) override {
        ++record_.startups;
        window_ = std::make_unique<Window>(*this);
        return 0;
    }
    void shutdown() override {
        if (window_ != nullptr) {
            ++record_.shutdowns;
            window_.reset();
        }
    }
    bool isStartuped() const override { return window_ != nullptr; }
    QWidget *mainWindow() override { return window_.get(); }
    void setToolConfigs(const QVariantMap & /*configs*/) override {}
    bool addFiles(const SongList &files) override {
        record_.files.push_back(files);
        record_.isWindowShown = window_ != nullptr && window_->isVisible();
        return !record_.refusesFiles && window_ != nullptr;
    }

private:
    class Window : public QWidget {
    public:
        explicit Window(FakeTool &tool) : tool_(tool) {}

    protected:
        void closeEvent(QCloseEvent *event) override {
            ++tool_.record_.closes;
            event->setAccepted(!tool_.record_.refusesClose);
            if (event->isAccepted() && tool_.record_.destroysWindowOnClose) {
                tool_.window_.release()->deleteLater();
            }
        }

    private:
        FakeTool &tool_;
    };

    QString name_;
    FakeToolRecord &record_;
    std::unique_ptr<Window> window_;
};

inline crate::ToolEntry loadedTool(const QString &name, FakeToolRecord &record) {
    crate::ToolEntry entry;
    entry.file = "/tools/fake.so";
    entry.id = name.toLower();
    entry.version = QStringLiteral("1");
    entry.state = crate::ToolState::loaded;
    entry.tool = std::make_unique<FakeTool>(name, record);
    return entry;
}

inline crate::ToolEntry brokenTool(const QString &id, const QString &error) {
    crate::ToolEntry entry;
    entry.file = "/tools/broken.so";
    entry.id = id;
    entry.state = crate::ToolState::notLoadable;
    entry.error = error;
    return entry;
}

/// `entries` moved into a list, which an initializer list cannot do.
template <typename... Entries>
std::vector<crate::ToolEntry> toolList(Entries... entries) {
    std::vector<crate::ToolEntry> list;
    (list.push_back(std::move(entries)), ...);
    return list;
}
