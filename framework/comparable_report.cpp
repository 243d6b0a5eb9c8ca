#include "framework/comparable_report.h"

#include <utility>

#include "framework/query_runner.h"

namespace varnel::framework {

namespace {

constexpr Member<ComparableReport> kMembers[] = {
    {"IComparableReport_FullName",
     [](ComparableReport& r) -> Variant { return r.IComparableReport_FullName(); }},
    {"IComparableReport_ComparableReportGen", nullptr,
     [](ComparableReport& r, const Variant& v) {
         r.IComparableReport_ComparableReportGen(ObjectAs<ComparableReportSink>(v));
     }},
};

}  // namespace

ComparableRow& ComparableRow::Add(std::string_view name, Variant value) {
    if (count_ == columns_.size()) columns_.emplace_back();
    auto& column = columns_[count_++];
    column.name = name;
    column.value = std::move(value);
    return *this;
}

ComparableRow& ComparableRow::Add(std::string_view name, const KnownSum& sum) {
    return Add(name, sum.Known() ? Variant(sum.Value()) : Variant(Variant::Null{}));
}

ComparableRow& ComparableRow::AddOnItsSide(Currency amount) {
    const Currency zero;
    Add("debit", amount > zero ? Variant(amount) : Variant());
    return Add("credit", amount < zero ? Variant(-amount) : Variant());
}

ComparableReport::ComparableReport(MemberParts& members, std::string_view class_name)
    : class_name_(class_name) {
    members.Add<ComparableReport>(*this, kMembers);
}

std::string ComparableReport::IComparableReport_FullName() {
    return "Varnel." + std::string(class_name_);
}

void ComparableReport::IComparableReport_ComparableReportGen(
    std::shared_ptr<ComparableReportSink> sink) {
    compares_ = false;
    sink_ = std::move(sink);
}

void ComparableReport::StartComparing(Application& application) {
    compares_ = false;
    in_group_ = false;
    if (sink_ == nullptr) return;
    purge_included_ = ReadSwitch(application, kPurgeIncluded);
    compares_ = true;
}

// The sink may take itself away while it is told.
template <class Write>
void ComparableReport::Tell(Write write) {
    if (!compares_) return;
    const auto sink = sink_;
    try {
        write(*sink);
    } catch (...) {
        compares_ = false;
        throw;
    }
}

void ComparableReport::BeginComparableGroup(const std::string& key, const std::string& caption) {
    in_group_ = true;
    Tell([&](ComparableReportSink& sink) { sink.BeginGroup(key, caption); });
}

ComparableRow& ComparableReport::NewComparableRow() {
    row_.Clear();
    return row_;
}

void ComparableReport::AddComparableRow(const std::string& key) {
    row_.Add(kPurgeIncluded, purge_included_);
    Tell([&](ComparableReportSink& sink) { sink.AddRow(key, row_.Columns()); });
}

void ComparableReport::EndComparableGroup() {
    if (std::exchange(in_group_, false)) Tell([](ComparableReportSink& sink) { sink.EndGroup(); });
}

}  // namespace varnel::framework
