#include "drivers/odbc/odbc_watch.h"

#include <sql.h>

#include <chrono>

namespace varnel::drivers {

namespace {

constexpr std::chrono::milliseconds kBetweenLooks{50};

}  // namespace

OdbcWatch::~OdbcWatch() {
    if (!thread_.joinable()) return;
    {
        const std::lock_guard lock(mutex_);
        ends_ = true;
    }
    changed_.notify_one();
    thread_.join();
}

// The thread sleeps through quick statements: nothing wakes it before the next look.
void OdbcWatch::Watch(void* statement) {
    if (!cancelled_) return;
    const std::lock_guard lock(mutex_);
    if (!thread_.joinable()) thread_ = std::thread([this] { Look(); });
    statement_ = statement;
}

void OdbcWatch::Look() {
    std::unique_lock lock(mutex_);
    while (!changed_.wait_for(lock, kBetweenLooks, [this] { return ends_; }))
        if (statement_ != nullptr && cancelled_()) SQLCancel(statement_);
}

}  // namespace varnel::drivers
