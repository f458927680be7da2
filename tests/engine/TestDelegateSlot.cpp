// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/DelegateSlot.h"

#include "engine/ScorchDelegate.h"
#include "engine/ScorcherDeviceDelegate.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

class Listener final : public ScorchDelegate {};
class BothListener final : public ScorchDelegate, public ScorcherDeviceDelegate {};

} // namespace

TEST(DelegateSlot, IsEmptyAtFirst) {
    const DelegateSlot<ScorchDelegate> slot;
    EXPECT_EQ(slot.get(), nullptr);
}

TEST(DelegateSlot, HoldsTheDelegateSetLast) {
    Listener first;
    Listener second;
    DelegateSlot<ScorchDelegate> slot;
    slot.set(&first);
    slot.set(&second);
    EXPECT_EQ(slot.get(), &second);
    slot.set(nullptr);
    EXPECT_EQ(slot.get(), nullptr);
}

TEST(DelegateSlot, DestroyedDelegateLeavesEverySlot) {
    DelegateSlot<ScorchDelegate> one;
    DelegateSlot<ScorchDelegate> two;
    auto listener = std::make_unique<Listener>();
    one.set(listener.get());
    two.set(listener.get());
    listener.reset();
    EXPECT_EQ(one.get(), nullptr);
    EXPECT_EQ(two.get(), nullptr);
}

TEST(DelegateSlot, DestroyedDelegateLeavesItsSuccessorAlone) {
    DelegateSlot<ScorchDelegate> slot;
    Listener second;
    {
        Listener first;
        slot.set(&first);
        slot.set(&second);
    }
    EXPECT_EQ(slot.get(), &second);
}

TEST(DelegateSlot, SlotThatGoesFirstIsForgotten) {
    Listener listener;
    {
        DelegateSlot<ScorchDelegate> slot;
        slot.set(&listener);
    }
    DelegateSlot<ScorchDelegate> next;
    next.set(&listener);
    EXPECT_EQ(next.get(), &listener);
}

TEST(DelegateSlot, SettingTheSameDelegateTwiceIsOnce) {
    DelegateSlot<ScorchDelegate> slot;
    {
        Listener listener;
        slot.set(&listener);
        slot.set(&listener);
        slot.set(nullptr);
        EXPECT_EQ(slot.get(), nullptr);
        slot.set(&listener);
    }
    EXPECT_EQ(slot.get(), nullptr);
}

TEST(DelegateSlot, OneObjectMayListenToBothKinds) {
    DelegateSlot<ScorchDelegate> burner;
    DelegateSlot<ScorcherDeviceDelegate> device;
    {
        BothListener listener;
        burner.set(&listener);
        device.set(&listener);
        EXPECT_NE(burner.get(), nullptr);
        EXPECT_NE(device.get(), nullptr);
    }
    EXPECT_EQ(burner.get(), nullptr);
    EXPECT_EQ(device.get(), nullptr);
}
