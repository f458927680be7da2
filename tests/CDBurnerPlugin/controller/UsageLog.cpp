// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/CDBurnerPlugin/controller/UsageLog.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

class LastingContext final : public VXUtilitiesToolContext {
public:
    VXUserDataCollector *userDataCollector() override { return collector; }

    VXUserDataCollector *collector = nullptr;
};

LastingContext &lastingContext() {
    static LastingContext context;
    return context;
}

} // namespace

UsageLog::UsageLog() {
    lastingContext().collector = this;
}

UsageLog::~UsageLog() {
    lastingContext().collector = nullptr;
}

VXUtilitiesToolContext *UsageLog::context() {
    return &lastingContext();
}

int UsageLog::count(const std::string &key) const {
    return static_cast<int>(std::count(keys_.begin(), keys_.end(), key));
}

void UsageLog::collectDataWithTargetAndKey(const QString &target, const QString &key) {
    EXPECT_EQ(target, QStringLiteral("CDBurn"));
    keys_.push_back(key.toStdString());
}
