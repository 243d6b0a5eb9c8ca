#include "reports/bank/current_bank_reconciliation.h"

#include "reports/bank/reconciliation_layout.h"

namespace varnel::reports {

using namespace framework;

namespace {

const Layout& CurrentBankReconciliationLayout() {
    static const Layout layout = ReconciliationLayout("dsrCurrentBankReconciliation");
    return layout;
}

constexpr Member<dsrCurrentBankReconciliation> kMembers[] = {
    {"ConcilDataSet",
     [](dsrCurrentBankReconciliation&) -> Variant {
         throw Error(error_number::kUnknownMember, "dsrCurrentBankReconciliation",
                     "ConcilDataSet can only be set: the report keeps a copy of the rows");
     },
     [](dsrCurrentBankReconciliation& r, const Variant& v) {
         r.ConcilDataSet(ObjectAs<Recordset>(v));
     }},
};

constexpr const char* kReconciled = "Conciliated";
constexpr std::array kCopied{"DetDate",     "DetRef", "DetDesc",    "DetAmnt",
                             "ForeignAmnt", "Source", "ExSrcKeyVal"};

std::int32_t TransactionType(bool reconciled, Currency amount) {
    const bool deposit = amount > Currency();
    if (reconciled) return deposit ? 2 : 1;
    return deposit ? 4 : 3;
}

}  // namespace

dsrCurrentBankReconciliation::dsrCurrentBankReconciliation()
    : ReconciliationReport(CurrentBankReconciliationLayout(), 30009) {
    Members().Add<dsrCurrentBankReconciliation>(*this, kMembers);
    Handle("Detail_Format", &dsrCurrentBankReconciliation::Detail_Format);
    for (std::size_t i = 0; i < kCopied.size(); ++i) fields_[i] = Data().AddField(kCopied[i]);
    type_ = Data().AddField("TransactionType");
}

void dsrCurrentBankReconciliation::ConcilDataSet(const std::shared_ptr<Recordset>& rows) {
    Guard("ConcilDataSet", [&] {
        items_.reset();
        if (rows == nullptr) return;
        auto copy = (Mark(), std::make_shared<RecordCopy>(*rows, kReconciled));
        const Columns& columns = copy->GetColumns();
        decltype(columns_) found;
        for (std::size_t i = 0; i < kCopied.size(); ++i) Mark(), found[i] = columns.At(kCopied[i]);
        amount_ = columns.At("DetAmnt");
        reconciled_ = columns.At(kReconciled);
        columns_ = found;
        items_ = std::move(copy);
    });
}

std::shared_ptr<Recordset> dsrCurrentBankReconciliation::OpenItems() {
    if (items_ != nullptr)
        items_->Arrange(IncludesReconciled() ? "" : "Conciliated = 0",
                        "Conciliated DESC, DetAmnt ASC ");
    return nullptr;
}

// An amount that cannot be read leaves the row in the group before it. The detail, which reads it
// again, tells of it.
void dsrCurrentBankReconciliation::FillFields(const Row& item) {
    for (std::size_t i = 0; i < kCopied.size(); ++i) Data().SetField(fields_[i], item, columns_[i]);
    Currency amount;
    try {
        amount = item.Amount(amount_);
    } catch (const Error&) {
        return;
    }
    Data().SetField(type_, TransactionType(item.Truth(reconciled_), amount));
}

void dsrCurrentBankReconciliation::ActiveReport_FetchData(bool& end_of_data) {
    end_of_data = items_ == nullptr || !HasBegun() || items_->AtEnd();
    if (end_of_data) return;
    Guard("ActiveReport_FetchData", [&] { FillFields(items_->Current()); });
}

// The last step is always reached, so that the feed goes on after a row that fails.
void dsrCurrentBankReconciliation::Detail_Format() {
    if (EndOfData()) return;
    struct Advance {
        RecordCopy& items;
        ~Advance() { items.MoveNext(); }
    } const advance{*items_};
    ReconciliationReport::Detail_Format();
}

}  // namespace varnel::reports
