// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/iso/IsoDirectories.h"

#include "scorch/iso/SizedStream.h"
#include "scorch/support/DiscContent.h"
#include "scorch/support/Text.h"

#include <algorithm>
#include <array>
#include <climits>
#include <condition_variable>
#include <cstdlib>
#include <memory>
#include <mutex>
#include <sys/stat.h>
#include <utility>

#include <libisofs.h>

namespace scorch {
namespace {

struct FreeImage {
    void operator()(::IsoImage *image) const { iso_image_unref(image); }
};
struct FreeOptions {
    void operator()(IsoWriteOpts *options) const { iso_write_opts_free(options); }
};
struct FreeStream {
    void operator()(IsoStream *stream) const { iso_stream_unref(stream); }
};
struct FreeBurnSource {
    void operator()(burn_source *source) const {
        source->cancel(source); // Ends libisofs' writer thread and waits for it.
        source->free_data(source);
        std::free(source); // NOLINT: allocated by libisofs
    }
};
using ImageHandle = std::unique_ptr<::IsoImage, FreeImage>;
using OptionsHandle = std::unique_ptr<IsoWriteOpts, FreeOptions>;
using StreamHandle = std::unique_ptr<IsoStream, FreeStream>;
using BurnSourceHandle = std::unique_ptr<burn_source, FreeBurnSource>;

Interruption failure(const char *step, int code) {
    const char *const text = code < 0 ? iso_error_to_msg(code) : nullptr;
    return ScorchError(ScorchErrorCode::internal,
                       localized("The contents of the disc could not be laid out. Remove what you "
                                 "added last and try again."),
                       std::string(step) + ": " + (text != nullptr ? text : "out of memory"));
}

/// The turn of one call to use libisofs, which is ready then.
class Turn {
public:
    /// Not owned if a stop was requested before the turn came.
    explicit Turn(const std::stop_token &stop) {
        Gate &gate = Turn::gate();
        std::unique_lock lock(gate.mutex);
        owned_ =
            gate.changed.wait(lock, stop, [&] { return !gate.taken; }) && !stop.stop_requested();
        gate.taken = gate.taken || owned_;
    }
    ~Turn() {
        if (owned_) {
            Gate &gate = Turn::gate();
            const std::lock_guard lock(gate.mutex);
            gate.taken = false;
            gate.changed.notify_all(); // One that was stopped meanwhile must not swallow it.
        }
    }
    Turn(const Turn &) = delete;
    Turn &operator=(const Turn &) = delete;

    bool owned() const { return owned_; }

    /// Sets libisofs up once for the process; below zero if it cannot be used.
    static int ready() {
        static const int result = [] {
            // With the flag, libisofs leaves the locale of the process alone.
            int code = iso_init_with_flag(1);
            if (code >= 0) {
                std::array<char, 6> utf8{"UTF-8"};
                std::array<char, 6> never{"NEVER"};
                std::array<char, 1> prefix{};
                code = iso_set_local_charset(utf8.data(), 0) <= 0 ? -1 : code;
                iso_set_msgs_severities(never.data(), never.data(), prefix.data());
            }
            return code;
        }();
        return result;
    }

private:
    struct Gate {
        std::mutex mutex;
        std::condition_variable_any changed;
        bool taken = false;
    };
    static Gate &gate() {
        static Gate gate;
        return gate;
    }
    bool owned_ = false;
};

/// What a disc for exchange needs: whoever reads it may read all of it, and gets files that are
/// writable once copied. The numbers of users and groups of this machine mean nothing elsewhere.
mode_t permissionsOf(const IsoNode &node) {
    constexpr mode_t anyExecute = S_IXUSR | S_IXGRP | S_IXOTH;
    const bool execute = node.isFolder || (node.mode & anyExecute) != 0;
    return execute ? 0755 : 0644;
}

void setAttributes(::IsoNode *made, const IsoNode &node) {
    iso_node_set_permissions(made, permissionsOf(node));
    iso_node_set_uid(made, 0);
    iso_node_set_gid(made, 0);
    iso_node_set_mtime(made, node.mtime);
    iso_node_set_atime(made, node.mtime);
    iso_node_set_ctime(made, node.mtime);
}

/// Copies the entries into an image of libisofs.
class TreeFiller {
public:
    TreeFiller(const IsoContents &contents, std::stop_token stop)
        : contents_(contents), stop_(std::move(stop)), streams_(contents.files().size()) {}

    Outcome<> fill(::IsoImage *image, const std::vector<IsoRootEntry> &entries) {
        std::vector<Named> root;
        root.reserve(entries.size());
        for (const IsoRootEntry &entry : entries) {
            root.push_back({entry.name.c_str(), entry.node.get()});
        }
        if (Outcome<> added = addAll(iso_image_get_root(image), std::move(root)); !added) {
            return added;
        }
        while (!folders_.empty()) {
            const auto [made, folder] = folders_.back();
            folders_.pop_back();
            std::vector<Named> children;
            children.reserve(folder->children.size());
            for (const IsoNodeRef &child : folder->children) {
                children.push_back({child->name.c_str(), child.get()});
            }
            if (Outcome<> added = addAll(made, std::move(children)); !added) {
                return added;
            }
        }
        return {};
    }

private:
    struct Named {
        std::string_view name;
        const IsoNode *node;
    };

    /// libisofs keeps the children of a folder in a list that is sorted by bytes, and looks for the
    /// place from its front: from the last name to the first, each is found at once.
    Outcome<> addAll(IsoDir *parent, std::vector<Named> children) {
        std::sort(children.begin(), children.end(),
                  [](const Named &a, const Named &b) { return a.name > b.name; });
        for (const Named &child : children) {
            if (stop_.stop_requested()) {
                return Interruption(Cancelled{});
            }
            const int code =
                child.node->isFolder ? addFolder(parent, child) : addFile(parent, child);
            if (code < 0) {
                return failure("add", code);
            }
        }
        return {};
    }

    int addFolder(IsoDir *parent, const Named &child) {
        IsoDir *made = nullptr;
        const int code = iso_tree_add_new_dir(parent, child.name.data(), &made);
        if (code >= 0) {
            setAttributes(reinterpret_cast<::IsoNode *>(made), *child.node);
            folders_.emplace_back(made, child.node);
        }
        return code;
    }

    int addFile(IsoDir *parent, const Named &child) {
        const std::size_t place = contents_.placeOf(*child.node);
        StreamHandle &stream = streams_[place];
        if (!stream) {
            stream.reset(sizedStreamNew(place, child.node->size));
        }
        if (!stream) {
            return ISO_OUT_OF_MEM;
        }
        IsoFile *made = nullptr;
        const int code = iso_tree_add_new_file(parent, child.name.data(), stream.get(), &made);
        if (code >= 0) {
            iso_stream_ref(stream.get()); // The file owns the one that it was given.
            auto *const node = reinterpret_cast<::IsoNode *>(made);
            setAttributes(node, *child.node);
            // Greater is nearer to the front.
            iso_node_set_sort_weight(node, INT_MAX - static_cast<int>(place));
        }
        return code;
    }

    const IsoContents &contents_;
    std::stop_token stop_;
    std::vector<StreamHandle> streams_;                         ///< By place in the contents.
    std::vector<std::pair<IsoDir *, const IsoNode *>> folders_; ///< Made, not filled yet.
};

/// Deep and long paths break the letter of the standard and nothing else: relocated folders, its
/// way to hold them, would show up as a stray folder in the root. Joliet names keep all their
/// characters and have neither a forced dot nor a version number, which people would see. The
/// older Rock Ridge signature is the one that every system knows.
OptionsHandle makeOptions(bool sizeOnly) {
    IsoWriteOpts *raw = nullptr;
    if (iso_write_opts_new(&raw, 0) < 0) {
        return nullptr;
    }
    OptionsHandle options(raw);
    iso_write_opts_set_will_cancel(raw, sizeOnly ? 1 : 0);
    iso_write_opts_set_iso_level(raw, 3);
    iso_write_opts_set_rockridge(raw, 1);
    iso_write_opts_set_rrip_version_1_10(raw, 1);
    iso_write_opts_set_joliet(raw, 1);
    iso_write_opts_set_joliet_long_names(raw, 1);
    iso_write_opts_set_joliet_longer_paths(raw, 1);
    iso_write_opts_set_joliet_utf16(raw, 1);
    iso_write_opts_set_allow_deep_paths(raw, 1);
    iso_write_opts_set_allow_longer_paths(raw, 1);
    iso_write_opts_set_no_force_dots(raw, 2);
    iso_write_opts_set_omit_version_numbers(raw, 2);
    iso_write_opts_set_always_gmt(raw, 1);
    iso_write_opts_set_dir_rec_mtime(raw, 3);
    iso_write_opts_set_sort_files(raw, 1);
    iso_write_opts_set_tail_blocks(raw, isoTailSectors);
    return options;
}

/// An image laid out by libisofs, ready to be asked for its size and its bytes.
struct LaidOut {
    ImageHandle image;
    OptionsHandle options;
    BurnSourceHandle source; ///< Goes first: it uses the others.
};

Outcome<LaidOut> layOut(const std::vector<IsoRootEntry> &entries, const IsoContents &contents,
                        bool sizeOnly, const std::stop_token &stop) {
    LaidOut result;
    ::IsoImage *image = nullptr;
    if (const int code = iso_image_new("", &image); code < 0) {
        return failure("new image", code);
    }
    result.image.reset(image);
    iso_image_set_application_id(image, "CD BURNER " CDBURNER_VERSION);
    iso_image_set_system_id(image, "LINUX");
    if (Outcome<> filled = TreeFiller(contents, stop).fill(image, entries); !filled) {
        return filled.error();
    }
    result.options = makeOptions(sizeOnly);
    if (!result.options) {
        return failure("options", ISO_OUT_OF_MEM);
    }
    burn_source *source = nullptr;
    if (const int code = iso_image_create_burn_source(image, result.options.get(), &source);
        code < 0) {
        return failure("layout", code);
    }
    result.source.reset(source);
    return result;
}

std::uint64_t sizeOf(const LaidOut &layout) {
    return static_cast<std::uint64_t>(layout.source->get_size(layout.source.get()));
}

Outcome<LaidOut> layOutInTurn(const Turn &turn, const std::vector<IsoRootEntry> &entries,
                              const IsoContents &contents, bool sizeOnly,
                              const std::stop_token &stop) {
    if (!turn.owned()) {
        return Interruption(Cancelled{});
    }
    if (const int code = Turn::ready(); code < 0) {
        return failure("set-up", code);
    }
    return layOut(entries, contents, sizeOnly, stop);
}

} // namespace

Outcome<std::uint64_t> isoLayoutSize(const std::vector<IsoRootEntry> &entries,
                                     const IsoContents &contents, const std::stop_token &stop) {
    const Turn turn(stop);
    Outcome<LaidOut> layout = layOutInTurn(turn, entries, contents, true, stop);
    if (!layout) {
        return layout.error();
    }
    return sizeOf(*layout);
}

Outcome<std::vector<std::byte>> isoDirectories(const std::vector<IsoRootEntry> &entries,
                                               const IsoContents &contents,
                                               const std::stop_token &stop) {
    const Turn turn(stop);
    Outcome<LaidOut> layout = layOutInTurn(turn, entries, contents, false, stop);
    if (!layout) {
        return layout.error();
    }
    const std::uint64_t behind =
        static_cast<std::uint64_t>(contents.sectors() + isoTailSectors) * dataSectorBytes;
    const std::uint64_t size = sizeOf(*layout);
    if (size <= behind || size % dataSectorBytes != 0) {
        return failure("size", ISO_ASSERT_FAILURE);
    }
    std::vector<std::byte> directories(size - behind);
    constexpr std::size_t chunk = 256 * std::size_t{1024};
    for (std::size_t done = 0; done < directories.size();) {
        const std::size_t count = std::min(chunk, directories.size() - done);
        auto *const to = reinterpret_cast<unsigned char *>(directories.data() + done);
        burn_source *const source = layout->source.get();
        if (stop.stop_requested()) {
            return Interruption(Cancelled{});
        }
        if (source->read_xt(source, to, static_cast<int>(count)) != static_cast<int>(count)) {
            return failure("directories", ISO_BUF_READ_ERROR);
        }
        done += count;
    }
    return directories;
}

} // namespace scorch
