#include "reports/statements/income_statement.h"

#include "framework/query_runner.h"
#include "reports/statements/comparative_income_statement.h"
#include "reports/statements/income_statement_layout.h"

namespace varnel::reports {

using namespace framework;

namespace {

constexpr std::int16_t kTitle = 6096;

constexpr Member<dsrIncomeStatement> kMembers[] = {
    {"ComparativeForm", nullptr, nullptr,
     [](dsrIncomeStatement& r, std::span<const Variant>) -> Variant {
         const auto report = r.ComparativeForm();
         return report == nullptr ? ObjectRef() : ObjectRef(report->IReport_ReportDesigner());
     }},
    {"GetExcelAddInProject", nullptr, nullptr,
     [](dsrIncomeStatement& r, std::span<const Variant> arguments) -> Variant {
         return r.GetExcelAddInProject(ArgumentAt(arguments, 0).ToInteger32());
     }},
};

}  // namespace

dsrIncomeStatement::dsrIncomeStatement()
    : IncomeStatementReport(IncomeStatementLayout(), kTitle, {}),
      ComparableReport(Members(), ObjectName()) {
    Members().Add<dsrIncomeStatement>(*this, kMembers);
    SetLines(
        {.row = StatementLine({.amounts = {&At("txtTotal"), &At("txtTotalCul")},
                               .rules = {&At("linTotal"), &At("linTotalCul")}}),
         .section_total = StatementLine({.amounts = {&At("txtTypeTotal"), &At("txtTypeTotalCul")}}),
         .result = StatementLine({.amounts = {&At("txtTotalPassCap"), &At("txtTotalPassCapCul")},
                                  .rules = {&At("linResult"), &At("linResultCul")}}),
         .final_rules = StatementLine({.amounts = {},
                                       .rules = {&At("linFinal"), &At("linFinal2"),
                                                 &At("linFinalCul"), &At("linFinalCul2")}})});
}

void dsrIncomeStatement::ActiveReport_ReportStart() {
    Guard("IComparableReportActions", [&] { Mark(), StartComparing(App()); });
    IncomeStatementReport::ActiveReport_ReportStart();
}

void dsrIncomeStatement::OnAccount(std::int32_t account_id, const Sides& amounts) {
    if (!Compares()) return;
    IComparableReportActions(std::to_string(account_id), txtAcctNumber.Text(), txtDescr.Text(),
                             amounts);
}

void dsrIncomeStatement::OnResult(std::int32_t section_type, const std::string& caption,
                                  const Sides& result) {
    if (!Compares()) return;
    IComparableReportActions("Result|" + std::to_string(section_type), {}, caption, result);
}

void dsrIncomeStatement::IComparableReportActions(const std::string& key,
                                                  const std::string& account,
                                                  const std::string& description,
                                                  const Sides& amounts) {
    Guard("IComparableReportActions", [&] {
        auto& row = NewComparableRow();
        row.Add("account", account).Add("description", description);
        row.Add("period", amounts[0]).Add("cumulative", amounts[1]);
        Mark(), AddComparableRow(key);
    });
}

std::shared_ptr<IReport> dsrIncomeStatement::ComparativeForm() {
    std::shared_ptr<dsrComparativeIncomeStatement> report;
    Guard("ComparativeForm", [&] {
        Mark(), report = std::make_shared<dsrComparativeIncomeStatement>();
        report->PrepareLike(*this);
        report->NoHeaders(IReport_NoHeaders());
        report->IReport_Initialize();
    });
    return report;
}

std::string dsrIncomeStatement::GetExcelAddInProject(std::int32_t project_id) {
    std::string code;
    Guard("GetExcelAddInProject", [&] {
        const auto rows =
            (Mark(),
             RunQuery(App(),
                      "SELECT * FROM ProjInfo WHERE InProjId = " + std::to_string(project_id), {}));
        const Column column = (Mark(), rows->GetColumns().At("ProjId"));
        if (!rows->AtEnd()) Mark(), rows->Current().AppendText(column, code);
    });
    return code;
}

}  // namespace varnel::reports
