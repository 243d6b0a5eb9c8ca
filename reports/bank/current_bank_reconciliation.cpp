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
    {"ConcilDataSet", nullptr,
     [](dsrCurrentBankReconciliation& r, const Variant& v) {
         r.ConcilDataSet(ObjectAs<Recordset>(v));
     }},
};

constexpr const char* kReconciled = "Conciliated";

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
}

void dsrCurrentBankReconciliation::ConcilDataSet(const std::shared_ptr<Recordset>& rows) {
    Guard("ConcilDataSet", [&] {
        items_.reset();
        if (rows == nullptr) return;
        const auto stream = (Mark(), RecordStream::Save(*rows));
        auto copy = std::make_shared<RecordCopy>(stream);
        Mark(), copy->SetBoolean(kReconciled);
        items_ = std::move(copy);
    });
}

void dsrCurrentBankReconciliation::ActiveReport_ReportStart() {
    Guard("ActiveReport_ReportStart", [&] {
        ForgetItems();
        if (items_ != nullptr) {
            Mark(), columns_.Resolve(items_->GetColumns());
            Mark(), reconciled_ = items_->GetColumns().At(kReconciled);
            Mark(), items_->SetFilter(IncludesReconciled() ? "" : "Conciliated = 0");
            Mark(), items_->SetSort("Conciliated DESC, DetAmnt ASC ");
        }
        StartItems();
    });
}

// Fields stay over later runs.
void dsrCurrentBankReconciliation::ActiveReport_DataInitialize() {
    Guard("ActiveReport_DataInitialize", [&] {
        if (fields_created_) return;
        fields_ = {.date = Data().AddField("DetDate"),
                   .reference = Data().AddField("DetRef"),
                   .description = Data().AddField("DetDesc"),
                   .amount = Data().AddField("DetAmnt"),
                   .type = Data().AddField("TransactionType")};
        fields_created_ = true;
        GroupBy(fields_.type);
    });
}

void dsrCurrentBankReconciliation::FillFields(const Row& item) {
    const auto text = [&item](Column column) {
        std::string plain;
        item.AppendText(column, plain);
        return plain;
    };
    Mark(), Data().SetField(fields_.date, text(columns_.date));
    Mark(), Data().SetField(fields_.reference, text(columns_.reference));
    Mark(), Data().SetField(fields_.description, text(columns_.description));
    const Currency amount = (Mark(), item.Amount(columns_.amount));
    Data().SetField(fields_.amount, amount);
    Mark(), Data().SetField(fields_.type, TransactionType(item.Truth(reconciled_), amount));
}

// The row is fed even when a field of it could not be read, and then stays in the group before it:
// the detail moves on.
void dsrCurrentBankReconciliation::ActiveReport_FetchData(bool& end_of_data) {
    end_of_data = items_ == nullptr || items_->AtEnd();
    if (end_of_data) return;
    Guard("ActiveReport_FetchData", [&] {
        try {
            FillFields(items_->Current());
        } catch (...) {
            LoseTotal();
            throw;
        }
    });
}

// The last step is always reached, so that the feed goes on after a row that fails.
void dsrCurrentBankReconciliation::Detail_Format() {
    if (items_ == nullptr || items_->AtEnd()) return;
    struct Advance {
        RecordCopy& items;
        ~Advance() { items.MoveNext(); }
    } const advance{*items_};
    ShowItem(items_->Current(), columns_);
}

}  // namespace varnel::reports
