#pragma once

#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>

namespace varnel::drivers {

/// Interrupts a statement that waits for its database when the program says so.
class OdbcWatch {
  public:
    /// `cancelled`, which may be empty, is asked by two threads at once and must not throw.
    explicit OdbcWatch(std::function<bool()> cancelled) : cancelled_(std::move(cancelled)) {}
    ~OdbcWatch();
    OdbcWatch(const OdbcWatch&) = delete;
    OdbcWatch& operator=(const OdbcWatch&) = delete;

    bool Cancelled() const { return cancelled_ && cancelled_(); }

    /// While it lives the statement is watched; one at a time.
    class Guard {
      public:
        Guard(OdbcWatch& watch, void* statement) : watch_(watch) { watch_.Watch(statement); }
        ~Guard() { watch_.Watch(nullptr); }
        Guard(const Guard&) = delete;
        Guard& operator=(const Guard&) = delete;

      private:
        OdbcWatch& watch_;
    };

  private:
    void Watch(void* statement);
    void Look();

    std::function<bool()> cancelled_;
    std::mutex mutex_;
    std::condition_variable changed_;
    void* statement_ = nullptr;
    bool ends_ = false;
    std::thread thread_;
};

}  // namespace varnel::drivers
