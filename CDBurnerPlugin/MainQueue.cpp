// SPDX-License-Identifier: GPL-2.0-or-later
#include "CDBurnerPlugin/MainQueue.h"

#include "CDBurnerPlugin/Log.h"

#include <QBasicTimer>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QObject>
#include <QThread>

#include <condition_variable>
#include <deque>
#include <exception>
#include <memory>
#include <mutex>
#include <unistd.h>
#include <utility>

namespace {

// Half of the longest time that the event loop may be held: the last task of a slice may begin just
// before its end.
constexpr qint64 sliceMilliseconds = 5;

/// What all threads share. Never destroyed: workers may outlive the static objects of a library.
struct Shared {
    std::mutex mutex;
    std::condition_variable changed; // A waiting task has run, or nothing will run any more.
    std::deque<std::function<void()>> tasks;
    std::unique_ptr<QObject> drainer; // Lives on the main thread, as long as the application.
    bool armed = false;               // A wake-up is on its way to the drainer.
    bool ending = false;              // The application is about to quit, or was and is gone.
};

Shared &shared() {
    static auto *const instance = new Shared;
    return *instance;
}

/// Has the drainer drain soon. Caller holds the mutex.
void wakeDrainer(Shared &queue) {
    queue.armed = true;
    QCoreApplication::postEvent(queue.drainer.get(), new QEvent(QEvent::User));
}

void runGuarded(const std::function<void()> &task) {
    try {
        task();
    } catch (const std::exception &error) {
        qCCritical(toolLog, "==>>a task of the main queue failed: %s", error.what());
    } catch (...) {
        qCCritical(toolLog, "==>>a task of the main queue failed");
    }
}

class Drainer final : public QObject {
public:
    bool event(QEvent *event) override {
        if (event->type() == QEvent::User) {
            drain();
            return true;
        }
        return QObject::event(event);
    }

protected:
    void timerEvent(QTimerEvent * /*event*/) override { drain(); }

private:
    void drain() {
        // A timer is not delivered again inside its own delivery, and a task may open an event
        // loop: only a timer started anew here fires in there. A posted event instead of a timer
        // would be delivered before any input.
        timer_.stop();
        timer_.start(0, this);
        QElapsedTimer elapsed;
        elapsed.start();
        while (runNext() && elapsed.elapsed() < sliceMilliseconds) {
        }
        const std::lock_guard lock(shared().mutex);
        if (shared().tasks.empty()) {
            timer_.stop();
            shared().armed = false;
        } else if (!timer_.isActive()) {
            timer_.start(0, this);
            shared().armed = true;
        }
    }

    static bool runNext() {
        std::function<void()> task;
        {
            const std::lock_guard lock(shared().mutex);
            if (shared().tasks.empty()) {
                return false;
            }
            task = std::move(shared().tasks.front());
            shared().tasks.pop_front();
        }
        runGuarded(task);
        return true;
    }

    QBasicTimer timer_;
};

void applicationWillQuit() {
    const std::lock_guard lock(shared().mutex);
    shared().ending = true;
    shared().changed.notify_all();
}

void applicationDidEnd() {
    applicationWillQuit();
    std::unique_ptr<QObject> drainer;
    std::deque<std::function<void()>> dropped;
    {
        const std::lock_guard lock(shared().mutex);
        drainer = std::move(shared().drainer);
        dropped.swap(shared().tasks);
        shared().armed = false;
    }
}

void applicationDidStart() {
    QObject::connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit,
                     &applicationWillQuit);
    qAddPostRoutine(&applicationDidEnd);
    const std::lock_guard lock(shared().mutex);
    shared().ending = false;
    shared().drainer = std::make_unique<Drainer>();
    if (!shared().tasks.empty()) {
        wakeDrainer(shared());
    }
}

Q_COREAPP_STARTUP_FUNCTION(applicationDidStart)

} // namespace

void MainQueue::async(std::function<void()> task) {
    Shared &queue = shared();
    const std::lock_guard lock(queue.mutex);
    queue.tasks.push_back(std::move(task));
    if (queue.drainer != nullptr && !queue.armed) {
        wakeDrainer(queue);
    }
}

bool MainQueue::sync(const std::function<void()> &task) {
    if (isMainThread()) {
        runGuarded(task);
        return true;
    }
    enum class Phase { waiting, running, done, givenUp };
    // Shared with the queued task, which stays behind when the caller has given up.
    const auto phase = std::make_shared<Phase>(Phase::waiting);
    Shared &queue = shared();
    async([phase, &task, &queue] {
        {
            const std::lock_guard lock(queue.mutex);
            if (*phase == Phase::givenUp) {
                return;
            }
            *phase = Phase::running;
        }
        runGuarded(task);
        const std::lock_guard lock(queue.mutex);
        *phase = Phase::done;
        queue.changed.notify_all();
    });
    std::unique_lock lock(queue.mutex);
    queue.changed.wait(lock, [&phase, &queue] {
        const bool nobodyAnswers = queue.ending || queue.drainer == nullptr;
        return *phase == Phase::done || (*phase == Phase::waiting && nobodyAnswers);
    });
    if (*phase == Phase::waiting) {
        *phase = Phase::givenUp;
        return false;
    }
    return true;
}

bool MainQueue::isMainThread() {
    const auto *application = QCoreApplication::instance();
    return application != nullptr ? QThread::currentThread() == application->thread()
                                  : gettid() == getpid();
}
