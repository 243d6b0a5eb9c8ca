#pragma once

#include <deque>
#include <span>
#include <string_view>
#include <vector>

#include "host/variant.h"

namespace varnel::drivers {

/// The values of a statement's "?" marks, each bound as the type that it is of: whole numbers
/// (truth values among them, as 1 and 0), dates, amounts as exact decimals, texts, null. The object
/// must live until the statement has run.
class OdbcParameters {
  public:
    /// `text` is the statement's, for errors. Raises error 3709 when a value is an object.
    OdbcParameters(void* statement, std::string_view text, std::span<const Variant> values);

  private:
    struct Slot {
        short c_type, sql_type;  // As ODBC numbers them.
        unsigned long size;
        short decimals;
        std::vector<char> bytes;
        long length;
    };

    void Bind(const Variant& value);
    Slot SlotOf(const Variant& value) const;

    void* statement_;
    std::string_view text_;
    std::deque<Slot> slots_;  // Their addresses stay.
};

}  // namespace varnel::drivers
