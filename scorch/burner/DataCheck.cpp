// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/burner/DataCheck.h"

#include "scorch/support/Utf8.h"

#include <algorithm>
#include <deque>
#include <iterator>
#include <memory>
#include <utility>
#include <vector>

namespace scorch {
namespace {

std::uint64_t bytesOf(const IsoNode &root) {
    std::uint64_t bytes = 0;
    std::vector<const IsoNode *> open = {&root};
    while (!open.empty()) {
        const IsoNode *const node = open.back();
        open.pop_back();
        bytes += node->size;
        for (const IsoNodeRef &child : node->children) {
            open.push_back(child.get());
        }
    }
    return bytes;
}

std::shared_ptr<DataItem> makeItem(IsoScan scan) {
    auto item = std::make_shared<DataItem>();
    item->imageName = scan.node->name;
    item->displayName = readableText(scan.node->name);
    item->fileBytes = bytesOf(*scan.node);
    item->upperBoundBytes = scan.upperBoundBytes;
    item->node = std::move(scan.node);
    return item;
}

class FileCheck {
public:
    FileCheck(const DataCheckServices &services, CheckQueue &queue, CheckSink &sink,
              const std::stop_token &stop)
        : services_(services), queue_(queue), sink_(sink), stop_(stop) {}

    CheckRefusals run();

private:
    void takeFiles();
    void scan(const std::filesystem::path &path);
    void lookedAt(const std::filesystem::path &file);

    const DataCheckServices &services_;
    CheckQueue &queue_;
    CheckSink &sink_;
    const std::stop_token &stop_;
    std::deque<BurnFile> files_;
    CheckRefusals refusals_;
};

CheckRefusals FileCheck::run() {
    while (!stop_.stop_requested()) {
        takeFiles();
        if (files_.empty()) {
            break;
        }
        const BurnFile file = std::move(files_.front());
        files_.pop_front();
        scan(file.path);
    }
    return std::move(refusals_);
}

/// All that has been added by now, so that the count is known before it is reported.
void FileCheck::takeFiles() {
    while (!stop_.stop_requested()) {
        auto files = files_.empty() ? queue_.takeOrClose() : queue_.take();
        if (!files) {
            return;
        }
        for (BurnFile &file : *files) {
            if (stop_.stop_requested()) {
                return;
            }
            queue_.count += static_cast<std::int64_t>(services_.count(file.path, stop_));
            files_.push_back(std::move(file));
        }
    }
}

void FileCheck::scan(const std::filesystem::path &path) {
    auto scan = services_.scan(
        path, [this](const std::filesystem::path &file) { lookedAt(file); }, stop_);
    if (!scan) {
        if (const auto *error = std::get_if<ScorchError>(&scan.error())) {
            refusals_.incompatibleFiles.push_back({path, error->localizedDescription()});
        }
        return;
    }
    std::move(scan->refused.begin(), scan->refused.end(),
              std::back_inserter(refusals_.incompatibleFiles));
    if (scan->node != nullptr) {
        sink_.accepted(makeItem(std::move(*scan)));
    }
}

void FileCheck::lookedAt(const std::filesystem::path &file) {
    ++queue_.looked;
    queue_.count = std::max(queue_.count, queue_.looked); // The folder grew meanwhile.
    if (mayReport(queue_, services_.clock())) {
        sink_.progressed({readableText(file.filename().native()), queue_.looked, queue_.count});
    }
}

} // namespace

CheckRefusals checkFiles(const DataCheckServices &services, CheckQueue &queue, CheckSink &sink,
                         const std::stop_token &stop) {
    return FileCheck(services, queue, sink, stop).run();
}

} // namespace scorch
