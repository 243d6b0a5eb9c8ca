#pragma once

#include <istream>
#include <string>
#include <vector>

namespace varnel::cli {

/// Records of comma-separated values (RFC 4180) in UTF-8, one by one: values between double quotes
/// may hold commas, line ends and doubled quotes; empty lines and a byte order mark are passed
/// over.
class CsvRecords {
  public:
    /// `name` is what messages call the input, which must outlive the records.
    CsvRecords(std::istream& input, std::string name);

    /// False at the end. A UsageError for a record that is not well formed or no UTF-8, or has
    /// another number of values than the first one.
    bool Next();
    const std::vector<std::string>& Values() const { return values_; }

    /// A UsageError about the record, with the line on which it begins.
    [[noreturn]] void Refuse(const std::string& fault) const;

  private:
    bool SkipEmptyLines();
    std::string ReadValue();
    std::string ReadQuoted();
    bool AtLineEnd();
    int Peek() { return input_.peek(); }
    char Take();

    std::istream& input_;
    std::string name_;
    std::vector<std::string> values_;
    std::size_t columns_ = 0;
    int line_ = 1;         // That is being read.
    int record_line_ = 1;  // On which the record begins.
};

}  // namespace varnel::cli
