#include "tests/bank/bank_run.h"

namespace varnel::test {

namespace {

constexpr const char* kFigures[] = {"EndBalAmnt", "DepAmntCirc", "ChqAmntCirc", "GLBalAmnt",
                                    "DifAmnt"};

}  // namespace

BankRun::BankRun(bool is_current)
    : ReportRun(is_current ? clsReport().CurrentBankReconciliation()
                           : clsReport().BankReconciliation()),
      current(is_current) {
    host->company.currency_info.records.push_back(
        {.id = 4, .code = "JPY", .description = "Yen", .decimals = 0});
    host->company.account_types = {{kBank, 1}, {kYenBank, 1}};
    host->company.account_currencies = {{kYenBank, 4}};
    Properties().Put("ExConcilAcctId", kBank);
    Properties().Put("ConcilAcctId", "1010-00");
    Properties().Put("ConcDate", Day("2025-03-31"));
}

void BankRun::SetFigures(const std::vector<const char*>& amounts) {
    for (std::size_t i = 0; i < amounts.size(); ++i)
        Properties().Put(kFigures[i], Money(amounts[i]));
}

std::string BankRun::Figures() {
    std::string figures;
    for (const char* name : kFigures) {
        const Variant figure = Properties().Get(name);
        figures += (figure.IsNull() ? "" : figure.ToCurrency().ToText(2)) + "|";
    }
    return figures;
}

void BankRun::IncludeReconciled(bool include) {
    host->use_dialog = [include](Form& form) {
        form.CheckBoxes()[0]->checked = include;
        form.Click(*form.Buttons()[0]);
    };
    dynamic_cast<IReportConfig&>(*report).IReportConfig_ShowConfigurationScreen();
}

RowSet BankRun::Rows() const {
    RowSet rows{{"DetDate", "DetRef", "DetDesc", "ForeignAmnt", "DetAmnt", "Source", "ExSrcKeyVal",
                 current ? "Conciliated" : "TransactionType"},
                {}};
    for (const auto& item : items) {
        const auto number = static_cast<std::int32_t>(rows.rows.size() + 1);
        const std::string no = std::to_string(number);
        rows.rows.push_back({item.date, note.IsEmpty() ? "R" + no : note,
                             note.IsEmpty() ? "Item " + no : note, item.foreign, item.amount, "INV",
                             number, current ? Variant(item.type <= 2) : Variant(item.type)});
    }
    return rows;
}

void BankRun::Prepare() {
    const RowSet rows = Rows();
    host->database.Answer("TransactionType", rows);
    if (!current) return;
    const auto screen = std::make_shared<drivers::MemoryRecordset>(rows.columns, rows.rows);
    Properties().Put("ConcilDataSet", ObjectRef(screen));
}

CollectedBands BankRun::operator()() {
    Prepare();
    return Collect(*report->IReport_ReportDesigner());
}

}  // namespace varnel::test
