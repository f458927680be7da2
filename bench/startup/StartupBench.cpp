// SPDX-License-Identifier: GPL-2.0-or-later
//
// How long a program takes from its start to a window that answers, and the memory it then has.
//
//   bench_startup [--runs N] [--title TEXT] -- PROGRAM [ARGUMENT]...
//
// Needs an X display (xvfb-run). A run starts the program, waits for a window whose title begins
// with TEXT to be mapped, and pings it (_NET_WM_PING) twice, one after the other: the first answer
// may come before the window's first paint, the second one comes from a later turn of the
// program's main loop. The clock runs from the fork to the second answer; the memory is VmRSS of
// the program at that moment, and RssAnon, which no other process shares. The processor time of its
// threads is printed beside them: it says how much of the time was waiting, on a busy machine for
// others. The program is then ended with SIGTERM. Prints each run and the medians. One run before
// the first warms the file cache.

#include <xcb/xcb.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <memory>
#include <optional>
#include <poll.h>
#include <set>
#include <string>
#include <string_view>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::seconds limit{20};

template <typename Reply>
using Owned = std::unique_ptr<Reply, decltype(&std::free)>;

template <typename Reply>
Owned<Reply> owned(Reply *reply) {
    return Owned<Reply>(reply, &std::free);
}

/// A display, seen as a window manager's neighbour would: windows that come, titles, pings.
class Display {
public:
    Display() : connection_(xcb_connect(nullptr, nullptr)) {
        if (xcb_connection_has_error(connection_) != 0) {
            std::fputs("no X display: use xvfb-run\n", stderr);
            std::exit(1);
        }
        root_ = xcb_setup_roots_iterator(xcb_get_setup(connection_)).data->root;
        // Answers to pings are sent to the root window; Qt sends them to those who watch the window
        // itself, others to those who watch what is in it.
        watch(root_, XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_STRUCTURE_NOTIFY);
        protocols_ = atom("WM_PROTOCOLS");
        ping_ = atom("_NET_WM_PING");
        title_ = atom("_NET_WM_NAME");
    }
    ~Display() { xcb_disconnect(connection_); }
    Display(const Display &) = delete;
    Display &operator=(const Display &) = delete;

    /// The first window with such a title that is mapped before `deadline`.
    std::optional<xcb_window_t> waitForWindow(std::string_view title, Clock::time_point deadline) {
        std::set<xcb_window_t> mapped;
        while (const auto event = next(deadline)) {
            const int type = event->response_type & 0x7f;
            if (type == XCB_CREATE_NOTIFY) {
                const auto *created = reinterpret_cast<xcb_create_notify_event_t *>(event.get());
                // Its own events come even when a window manager has put a frame around it.
                watch(created->window,
                      XCB_EVENT_MASK_STRUCTURE_NOTIFY | XCB_EVENT_MASK_PROPERTY_CHANGE);
                xcb_flush(connection_);
            }
            xcb_window_t window = 0;
            if (type == XCB_MAP_NOTIFY) {
                window = reinterpret_cast<xcb_map_notify_event_t *>(event.get())->window;
                mapped.insert(window);
            } else if (type == XCB_PROPERTY_NOTIFY) {
                window = reinterpret_cast<xcb_property_notify_event_t *>(event.get())->window;
            }
            if (mapped.contains(window) && titleOf(window).starts_with(title)) {
                return window;
            }
        }
        return std::nullopt;
    }

    /// Whether the window's program answers before `deadline`.
    bool ping(xcb_window_t window, Clock::time_point deadline) {
        xcb_client_message_event_t message{};
        message.response_type = XCB_CLIENT_MESSAGE;
        message.format = 32;
        message.window = window;
        message.type = protocols_;
        message.data.data32[0] = ping_;
        message.data.data32[1] = ++pings_;
        message.data.data32[2] = window;
        std::array<char, 32> bytes{};
        std::memcpy(bytes.data(), &message, sizeof message);
        xcb_send_event(connection_, 0, window, XCB_EVENT_MASK_NO_EVENT, bytes.data());
        xcb_flush(connection_);
        while (const auto event = next(deadline)) {
            const auto *answer = reinterpret_cast<xcb_client_message_event_t *>(event.get());
            if ((event->response_type & 0x7f) == XCB_CLIENT_MESSAGE && answer->window == root_ &&
                answer->data.data32[0] == ping_ && answer->data.data32[1] == pings_) {
                return true;
            }
        }
        return false;
    }

    /// Drops what is left of the run before.
    void forgetEvents() {
        while (owned(xcb_poll_for_event(connection_)) != nullptr) {
        }
    }

private:
    Owned<xcb_generic_event_t> next(Clock::time_point deadline) {
        for (;;) {
            auto event = owned(xcb_poll_for_event(connection_));
            const auto left =
                std::chrono::duration_cast<std::chrono::milliseconds>(deadline - Clock::now());
            if (event != nullptr || left.count() <= 0) {
                return event;
            }
            pollfd ready{xcb_get_file_descriptor(connection_), POLLIN, 0};
            poll(&ready, 1, static_cast<int>(left.count()));
        }
    }

    xcb_atom_t atom(const char *name) {
        const auto cookie =
            xcb_intern_atom(connection_, 0, static_cast<std::uint16_t>(std::strlen(name)), name);
        return owned(xcb_intern_atom_reply(connection_, cookie, nullptr))->atom;
    }

    void watch(xcb_window_t window, std::uint32_t events) {
        xcb_change_window_attributes(connection_, window, XCB_CW_EVENT_MASK, &events);
    }

    std::string titleOf(xcb_window_t window) {
        for (const xcb_atom_t property : {title_, xcb_atom_t{XCB_ATOM_WM_NAME}}) {
            const auto cookie = xcb_get_property(connection_, 0, window, property,
                                                 XCB_GET_PROPERTY_TYPE_ANY, 0, 256);
            const auto reply = owned(xcb_get_property_reply(connection_, cookie, nullptr));
            const int length = reply != nullptr ? xcb_get_property_value_length(reply.get()) : 0;
            if (length > 0) {
                return {static_cast<const char *>(xcb_get_property_value(reply.get())),
                        static_cast<std::size_t>(length)};
            }
        }
        return {};
    }

    xcb_connection_t *connection_;
    xcb_window_t root_ = 0;
    xcb_atom_t protocols_ = 0;
    xcb_atom_t ping_ = 0;
    xcb_atom_t title_ = 0;
    std::uint32_t pings_ = 0;
};

struct Run {
    double seconds = 0;
    double processorSeconds = 0;
    double residentMiB = 0;
    double ownMiB = 0;
};

/// A line of /proc/PID/status, which counts in KiB.
double mebibytes(pid_t process, std::string_view key) {
    std::ifstream status("/proc/" + std::to_string(process) + "/status");
    for (std::string line; std::getline(status, line);) {
        if (line.starts_with(key)) {
            return std::strtod(line.c_str() + key.size(), nullptr) / 1024;
        }
    }
    return 0;
}

/// What all threads of a process have run for, from the first field of schedstat (nanoseconds).
double processorSeconds(pid_t process) {
    double nanoseconds = 0;
    std::error_code error;
    const std::filesystem::directory_iterator threads("/proc/" + std::to_string(process) + "/task",
                                                      error);
    for (const auto &thread : threads) {
        std::ifstream file(thread.path() / "schedstat");
        double spent = 0;
        file >> spent;
        nanoseconds += spent;
    }
    return nanoseconds / 1e9;
}

std::optional<Run> measure(Display &display, const std::string &title, char *const *program) {
    display.forgetEvents();
    const Clock::time_point start = Clock::now();
    const Clock::time_point deadline = start + limit;
    const pid_t process = fork();
    if (process == 0) {
        execvp(program[0], program);
        std::fprintf(stderr, "%s: %s\n", program[0], std::strerror(errno));
        _exit(127);
    }
    std::optional<Run> run;
    const auto window = display.waitForWindow(title, deadline);
    if (window && display.ping(*window, deadline) && display.ping(*window, deadline)) {
        run.emplace();
        run->seconds = std::chrono::duration<double>(Clock::now() - start).count();
        run->processorSeconds = processorSeconds(process);
        run->residentMiB = mebibytes(process, "VmRSS:");
        run->ownMiB = mebibytes(process, "RssAnon:");
    }
    kill(process, SIGTERM);
    int status = 0;
    waitpid(process, &status, 0);
    return run;
}

double median(const std::vector<Run> &runs, double Run::*member) {
    std::vector<double> values;
    values.reserve(runs.size());
    for (const Run &run : runs) {
        values.push_back(run.*member);
    }
    std::sort(values.begin(), values.end());
    const std::size_t middle = values.size() / 2;
    return values.size() % 2 == 1 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

int usage() {
    std::fputs("usage: bench_startup [--runs N] [--title TEXT] -- PROGRAM [ARGUMENT]...\n", stderr);
    return 2;
}

} // namespace

int main(int argc, char *argv[]) {
    std::size_t count = 10;
    std::string title = "CD Burner";
    int at = 1;
    for (; at + 1 < argc && std::string_view(argv[at]) != "--"; at += 2) {
        if (std::string_view(argv[at]) == "--runs") {
            count = std::max(1UL, std::strtoul(argv[at + 1], nullptr, 10));
        } else if (std::string_view(argv[at]) == "--title") {
            title = argv[at + 1];
        } else {
            return usage();
        }
    }
    if (at + 1 >= argc) {
        return usage();
    }
    Display display;
    std::vector<Run> runs;
    for (std::size_t number = 0; number <= count; ++number) {
        const auto run = measure(display, title, argv + at + 1);
        if (!run) {
            std::fputs("no window with this title answered\n", stderr);
            return 1;
        }
        if (number > 0) {
            std::printf("run %zu: %.3f s (processor %.3f s), %.1f MiB\n", number, run->seconds,
                        run->processorSeconds, run->residentMiB);
            runs.push_back(*run);
        }
    }
    std::printf("median of %zu: %.3f s to a window that answers (processor %.3f s), "
                "%.1f MiB resident (%.1f its own)\n",
                runs.size(), median(runs, &Run::seconds), median(runs, &Run::processorSeconds),
                median(runs, &Run::residentMiB), median(runs, &Run::ownMiB));
    return 0;
}
