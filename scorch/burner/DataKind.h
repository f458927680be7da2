// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "scorch/burner/DataCheck.h"
#include "scorch/burner/DiscKind.h"
#include "scorch/burner/UniqueNames.h"
#include "scorch/support/PostTask.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <stop_token>
#include <thread>

namespace scorch {

/// The size of the image that a list makes; see isoImageSize. Any thread.
using ImageSizeFunction =
    std::function<Outcome<std::uint64_t>(const std::vector<ItemRef> &, const std::stop_token &)>;

/// Makes the content of a data disc; see DataContent. Any thread.
using DataContentFactory = std::function<Outcome<std::unique_ptr<DiscContent>>(
    const std::vector<ItemRef> &, const std::string &discName, const std::stop_token &)>;

/// What a data disc's list needs.
struct DataKindServices {
    DataCheckServices check;
    ImageSizeFunction imageSize;
    DataContentFactory makeContent;
    PostTask post;
};

/// Data CDs. What the list takes is the size of its image: folders, names and files that stand in
/// it twice make that another than the sum of the files, so it is found out by laying the image
/// out, on a thread. Until then an upper bound answers.
class DataKind final : public DiscKind {
public:
    explicit DataKind(DataKindServices services);
    ~DataKind() override;

    CheckFunction check() const override;
    void adopt(Item &item) override;
    void forget(const std::vector<ItemRef> &items) override;
    std::uint64_t usedCapacity() const override { return items_ == 0 ? 0 : capacity_; }
    bool settle(const std::vector<ItemRef> &list, std::function<void()> settled) override;
    std::int64_t freeCapacity(const ScorcherDevice &device) const override;
    std::optional<ScorchError> refusal(const std::vector<ItemRef> &list) const override;
    ContentFactory content(std::vector<ItemRef> list, std::string discName) const override;
    void shutDown() override;

private:
    void listChanged();
    void sizeFound(std::uint64_t version, const Outcome<std::uint64_t> &size);
    void joinThread();

    const DataKindServices services_;
    UniqueNames names_;
    std::size_t items_ = 0;
    std::uint64_t capacity_ = 0; ///< Bytes; at least what the image has.
    bool exact_ = true;
    std::uint64_t version_ = 0; ///< Of the list.
    std::thread thread_;        ///< Lays an image out.
    std::stop_source stop_;
    std::function<void()> settled_;
    std::shared_ptr<DataKind *> self_; ///< Gone when this is: results that are late find nobody.
};

} // namespace scorch
