// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <algorithm>
#include <utility>
#include <vector>

template <class Delegate>
class DelegateSlot;

/// Base of the contract's delegate classes. Nobody owns a delegate; when one is destroyed it takes
/// itself off wherever it is set, so that a late callback reaches nobody. Main thread only.
template <class Delegate>
class DetachingDelegate {
public:
    DetachingDelegate(const DetachingDelegate &) = delete;
    DetachingDelegate &operator=(const DetachingDelegate &) = delete;

protected:
    DetachingDelegate() = default;

    ~DetachingDelegate() {
        for (DelegateSlot<Delegate> *slot : slots_) {
            slot->delegate_ = nullptr;
        }
    }

private:
    friend class DelegateSlot<Delegate>;
    std::vector<DelegateSlot<Delegate> *> slots_;
};

/// Where an engine object keeps its delegate: a raw pointer that becomes null when the delegate is
/// destroyed. Main thread only.
template <class Delegate>
class DelegateSlot {
public:
    DelegateSlot() = default;
    DelegateSlot(const DelegateSlot &) = delete;
    DelegateSlot &operator=(const DelegateSlot &) = delete;

    ~DelegateSlot() { set(nullptr); }

    void set(Delegate *delegate) {
        if (delegate == delegate_) {
            return;
        }
        if (delegate_ != nullptr) {
            auto &entries = registry(delegate_).slots_;
            entries.erase(std::remove(entries.begin(), entries.end(), this), entries.end());
        }
        delegate_ = delegate;
        if (delegate_ != nullptr) {
            registry(delegate_).slots_.push_back(this);
        }
    }

    Delegate *get() const { return delegate_; }

private:
    friend class DetachingDelegate<Delegate>;

    static DetachingDelegate<Delegate> &registry(Delegate *delegate) { return *delegate; }

    Delegate *delegate_ = nullptr;
};
