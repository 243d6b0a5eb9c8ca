#pragma once

#include <string>
#include <vector>

#include "host/error.h"
#include "host/report.h"

namespace varnel::test {

/// Keeps what a report gives a comparison: "begin 1010 Account 1010", "1010: debit=5.0000|…",
/// "end".
class CollectedRows final : public ComparableReportSink, public Object {
  public:
    std::vector<std::string> told;
    /// The call with this number, counted from 1, fails.
    int failing = 0;

    void BeginGroup(const std::string& key, const std::string& caption) override {
        Tell("begin " + key + " " + caption);
    }
    void AddRow(const std::string& key, std::span<const NamedValue> columns) override {
        std::string row = key + ":";
        for (const auto& [name, value] : columns)
            row += (&name == &columns.front().name ? " " : "|") + name + "=" + TextOf(value);
        Tell(std::move(row));
    }
    void EndGroup() override { Tell("end"); }

  private:
    /// Amounts with four decimals, so that they are no texts; "?" for what is not known.
    static std::string TextOf(const Variant& value) {
        if (value.IsNull()) return "?";
        return value.Holds<Currency>() ? value.ToCurrency().ToText() : value.ToText();
    }
    void Tell(std::string text) {
        told.push_back(std::move(text));
        if (static_cast<int>(told.size()) == failing)
            throw Error(error_number::kOther, "Sink", "The sink is full");
    }
};

}  // namespace varnel::test
