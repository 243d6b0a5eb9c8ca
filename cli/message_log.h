#pragma once

#include <cstdint>
#include <string>

#include "cli/console.h"

namespace varnel::cli {

/// The message boxes of a report on standard error: the first ones in full, all of them counted, as
/// a fault of one handler may come back on a million rows.
class MessageLog {
  public:
    explicit MessageLog(Console& console) : console_(console) {}

    void Add(const std::string& text);
    /// Tells of a text that has no translation; this is no message.
    void AddMissingText(std::int16_t number);
    /// The same for what follows from the loss of the database: one message tells it all.
    void AddLoss(const std::string& text);
    bool Lost() const { return lost_; }
    std::int64_t Count() const { return count_; }

  private:
    Console& console_;
    bool lost_ = false;
    std::int64_t count_ = 0;
};

}  // namespace varnel::cli
