// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/support/WorkerThread.h"

#include <csignal>
#include <pthread.h>
#include <utility>

namespace scorch {
namespace {

/// The calling thread's signals, blocked for as long as this lives: a new thread inherits the mask.
class SignalsBlocked {
public:
    SignalsBlocked() {
        sigset_t blocked;
        sigfillset(&blocked);
        for (const int fault : {SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT, SIGTRAP}) {
            sigdelset(&blocked, fault);
        }
        pthread_sigmask(SIG_SETMASK, &blocked, &before_);
    }
    ~SignalsBlocked() { pthread_sigmask(SIG_SETMASK, &before_, nullptr); }
    SignalsBlocked(const SignalsBlocked &) = delete;
    SignalsBlocked &operator=(const SignalsBlocked &) = delete;

private:
    sigset_t before_{};
};

} // namespace

std::thread startWorkerThread(const char *name, std::function<void()> work) {
    const SignalsBlocked blocked;
    std::thread thread(std::move(work));
    pthread_setname_np(thread.native_handle(), name);
    return thread;
}

} // namespace scorch
