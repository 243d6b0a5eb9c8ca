#pragma once

#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "framework/known_sum.h"
#include "host/application.h"
#include "host/member_table.h"
#include "host/report.h"

namespace varnel::framework {

/// The host's flag that every row carries, and the setting that it is read from.
inline constexpr std::string_view kPurgeIncluded = "PurgeIncl";

/// The values of one row for a comparison, in the order in which they are added. Storage is used
/// again from row to row.
class ComparableRow {
  public:
    void Clear() { count_ = 0; }
    ComparableRow& Add(std::string_view name, Variant value);
    /// Null when the sum is not known.
    ComparableRow& Add(std::string_view name, const KnownSum& sum);
    /// A debit-positive amount as "debit" or "credit", the other one empty; zero leaves both so.
    ComparableRow& AddOnItsSide(Currency amount);
    std::span<const ComparableReportSink::NamedValue> Columns() const {
        return {columns_.data(), count_};
    }

  private:
    std::vector<ComparableReportSink::NamedValue> columns_;
    std::size_t count_ = 0;
};

/// `IComparableReport`, once for all reports that have it.
///
/// A sink hears from the start of a run that it was set before. One that fails hears no more of
/// that run, and one that is taken away or replaced hears no more at all.
class ComparableReport : public IComparableReport {
  public:
    /// Adds its members, by the interface's names, to those of the report it is a part of.
    /// `class_name` is kept as it is.
    ComparableReport(MemberParts& members, std::string_view class_name);

    std::string IComparableReport_FullName() override;
    void IComparableReport_ComparableReportGen(std::shared_ptr<ComparableReportSink> sink) override;

  protected:
    /// At the start of a run. Where there is a sink, reads the company's setting "PurgeIncl", which
    /// every row carries.
    void StartComparing(Application& application);
    /// Whether there is anybody to write to: ask before anything else is done for a comparison.
    bool Compares() const { return compares_; }

    // What follows does nothing where nobody listens. What the sink fails at comes out.

    void BeginComparableGroup(const std::string& key, const std::string& caption);
    /// An empty row, to be filled and then given.
    ComparableRow& NewComparableRow();
    /// Gives the row.
    void AddComparableRow(const std::string& key);
    /// Does nothing when no group was begun.
    void EndComparableGroup();
    bool InComparableGroup() const { return in_group_; }

  private:
    template <class Write>
    void Tell(Write write);

    std::string_view class_name_;
    std::shared_ptr<ComparableReportSink> sink_;
    ComparableRow row_;
    bool compares_ = false;
    bool in_group_ = false;
    bool purge_included_ = false;
};

}  // namespace varnel::framework
