// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/burner/DataKind.h"

#include "scorch/burner/BurnErrors.h"
#include "scorch/support/Utf8.h"
#include "scorch/support/WorkerThread.h"

#include <exception>
#include <system_error>
#include <utility>

namespace scorch {
namespace {

/// More than an image without any files takes: 16 sectors before the descriptors, those, the path
/// tables and roots of both trees, 150 sectors of padding at the end, and 300 sectors at least.
constexpr std::uint64_t emptyImageBytes = 512 * dataSectorBytes;

} // namespace

DataKind::DataKind(DataKindServices services)
    : services_(std::move(services)), self_(std::make_shared<DataKind *>(this)) {}

DataKind::~DataKind() {
    shutDown();
}

void DataKind::shutDown() {
    self_.reset();
    settled_ = nullptr;
    joinThread();
}

void DataKind::joinThread() {
    stop_.request_stop();
    if (thread_.joinable()) {
        thread_.join();
    }
}

CheckFunction DataKind::check() const {
    return [services = services_.check](CheckQueue &queue, CheckSink &sink,
                                        const std::stop_token &stop) {
        return checkFiles(services, queue, sink, stop);
    };
}

void DataKind::adopt(Item &item) {
    auto &data = static_cast<DataItem &>(item);
    const std::string unique = names_.claim(data.imageName, data.node->isFolder);
    if (unique != data.imageName) {
        data.imageName = unique;
        data.displayName = readableText(unique);
    }
    if (items_ == 0) {
        capacity_ = emptyImageBytes;
    }
    ++items_;
    capacity_ += data.upperBoundBytes;
    listChanged();
}

void DataKind::forget(const std::vector<ItemRef> &items) {
    for (const ItemRef &item : items) {
        names_.release(static_cast<const DataItem &>(*item).imageName);
    }
    items_ -= items.size();
    listChanged();
}

void DataKind::listChanged() {
    ++version_;
    exact_ = items_ == 0;
    stop_.request_stop();
}

bool DataKind::settle(const std::vector<ItemRef> &list, std::function<void()> settled) {
    if (exact_ || self_ == nullptr) {
        return true;
    }
    settled_ = std::move(settled);
    if (thread_.joinable()) {
        return false; // Its end starts the next one, if the list has changed since.
    }
    stop_ = std::stop_source();
    const auto work = [list, version = version_, imageSize = services_.imageSize,
                       post = services_.post, stop = stop_.get_token(),
                       self = std::weak_ptr<DataKind *>(self_)] {
        Outcome<std::uint64_t> size = Interruption(Cancelled{});
        try {
            size = imageSize(list, stop);
        } catch (const std::exception &failure) {
            size = Interruption(internalError(failure.what()));
        }
        post([self, version, size] {
            if (const auto kind = self.lock()) {
                (*kind)->sizeFound(version, size);
            }
        });
    };
    try {
        thread_ = startWorkerThread("scorch-size", work);
    } catch (const std::system_error &) {
        exact_ = true; // The upper bound has to do: nothing better can be found out now.
    }
    return exact_;
}

void DataKind::sizeFound(std::uint64_t version, const Outcome<std::uint64_t> &size) {
    joinThread(); // At its end already.
    if (version == version_) {
        exact_ = true;
        if (size) {
            capacity_ = *size;
        }
        // Otherwise something in the list cannot be laid out any more. The burn will name it.
    }
    if (const auto settled = std::exchange(settled_, nullptr)) {
        settled();
    }
}

std::int64_t DataKind::freeCapacity(const ScorcherDevice &device) const {
    return device.freeSizeOfDisc();
}

std::optional<ScorchError> DataKind::refusal(const std::vector<ItemRef> & /*list*/) const {
    return std::nullopt;
}

ContentFactory DataKind::content(std::vector<ItemRef> list, std::string discName) const {
    return [list = std::move(list), discName = std::move(discName),
            makeContent = services_.makeContent](const std::stop_token &stop) {
        return makeContent(list, discName, stop);
    };
}

} // namespace scorch
