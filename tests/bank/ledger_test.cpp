#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "company/scripted_dialogs.h"
#include "framework/cls_report.h"
#include "tests/company/host_small_company.h"
#include "tests/support/collected_bands.h"

namespace varnel::company {
namespace {

using testing::ElementsAre;

// Account 10 besides its lines of 1000 (2024-03-10), -300.10 (2024-11-05) and -200.25 (2025-02-20);
// reconciliation 1 is of 2024-12-31.
const char* const kLines = R"sql(
INSERT INTO GLDet (InGLDetId, SeqNo, ExAcctId, DetDate, DetRef, DetAmnt, ForeignAmnt, Source,
    ExSrcKeyVal, Conciliated, ExBankConcilHistoryId)
VALUES
    (101, 9, 10, '2024-12-01', 'in 1', -5, 90, 'CHQ', 7, 1, 1),
    (102, 9, 10, '2024-12-02', 'in 1', 7, 90, 'DEP', 7, 1, 1),
    (103, 9, 10, '2024-12-03', 'in 3', -11, 90, 'CHQ', 8, 1, 3),
    (104, 9, 10, '2024-12-04', 'in 3', 13, 90, 'DEP', 8, 1, 3),
    (105, 9, 10, '2024-12-05', 'open', -17, 90, 'CHQ', 9, 0, NULL),
    (106, 9, 10, '2024-12-06', 'zero', 0, 90, 'CHQ', 9, 0, NULL),
    (107, 9, 10, '2024-12-31', 'open', 19, 90, 'DEP', 9, NULL, NULL),
    (108, 9, 10, '2025-01-01', 'open', 23, 90, 'DEP', 9, 0, NULL),
    (109, 9, 10, '2025-01-01', 'now', -29, 90, 'CHQ', 9, 1, 0),
    (110, 9, 20, '2024-12-05', 'other', -31, 90, 'CHQ', 9, 0, NULL);
)sql";

/// The report over the database; account 10 on 2025-01-01.
struct LedgerRun {
    explicit LedgerRun(int database_type, const char* include = "False") {
        HostOptions options{.language = "de-DE", .date_style = DateStyle::kLocale};
        options.database_type = database_type;
        options.message_sink = [this](const std::string& text) { messages.push_back(text); };
        options.dialogs = std::make_shared<ScriptedDialogs>(
            ScriptedDialogs::Answers{{"chkIncludeReconciledAmnt", include}});
        report->IReport_Application(OpenCompany(file.Path(), options));
        report->IReport_Initialize();
        dynamic_cast<IReportConfig&>(*report).IReportConfig_ShowConfigurationScreen();
        Properties().Put("ExConcilAcctId", 10);
        Properties().Put("ConcDate", Day("2025-01-01"));
    }

    Object& Properties() { return dynamic_cast<Object&>(*report); }
    /// Captions of groups, and their items.
    std::vector<std::string> Listed() {
        std::vector<std::string> lines;
        for (const auto& band : test::Collect(*report->IReport_ReportDesigner()).bands) {
            if (band.section == "ghTransactionType")
                lines.push_back(band.Text("lblTransactionType"));
            if (band.section == "Detail")
                lines.push_back(band.Text("txtDetDate") + " " + band.Text("txtAmount") + " " +
                                band["txtAmount"].tag);
        }
        return lines;
    }

    CompanyFile file{std::string(kSmallCompany) + kLines};
    std::vector<std::string> messages;
    std::shared_ptr<IReport> report = clsReport().BankReconciliation();
};

struct Asked {
    std::int32_t history_id;
    const char* include;
    std::vector<std::string> listed;
};

// What was reconciled in 3 is outstanding in 1, but not listed.
const Asked kAsked[] = {
    {1,
     "False",
     {"Outstanding withdrawals", "05.11.24 300,10 |", "05.12.24 17,00 CHQ|9",
      "Outstanding deposits", "10.03.24 1.000,00 |", "31.12.24 19,00 DEP|9"}},
    {1,
     "True",
     {"Reconciled withdrawals", "01.12.24 5,00 CHQ|7", "Reconciled deposits", "02.12.24 7,00 DEP|7",
      "Outstanding withdrawals", "05.11.24 300,10 |", "05.12.24 17,00 CHQ|9",
      "Outstanding deposits", "10.03.24 1.000,00 |", "31.12.24 19,00 DEP|9"}},
    {0,
     "True",
     {"Reconciled withdrawals", "01.01.25 29,00 CHQ|9", "Outstanding withdrawals",
      "05.11.24 300,10 |", "05.12.24 17,00 CHQ|9", "Outstanding deposits", "10.03.24 1.000,00 |",
      "31.12.24 19,00 DEP|9", "01.01.25 23,00 DEP|9"}},
    {2, "True", {}},
};

TEST(LedgerReconciliationTest, ListsWhatWasOutstandingAndWithItsOptionWhatWasReconciled) {
    for (const int dialect : {0, 1}) {
        for (const auto& [history_id, include, listed] : kAsked) {
            LedgerRun run(dialect, include);
            run.Properties().Put("ExBankConcilHistoryId", history_id);
            EXPECT_EQ(run.Listed(), listed) << dialect << " " << history_id << include;
            EXPECT_THAT(run.messages, testing::IsEmpty());
        }
    }
}

TEST(LedgerReconciliationTest, AnUnknownDatabaseTypeIsToldAndNothingIsListed) {
    LedgerRun run(7);
    EXPECT_THAT(run.Listed(), testing::IsEmpty());
    EXPECT_THAT(run.messages, ElementsAre(testing::ContainsRegex(
                                  "SELECT GLDet.DetDate(.|\n)*\r\nin Varnel.dsrBankReconciliation."
                                  "ActiveReport_ReportStart at line [1-9]")));
}

}  // namespace
}  // namespace varnel::company
