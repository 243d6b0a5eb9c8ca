#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "company/company_host.h"
#include "framework/cls_report.h"
#include "tests/company/demo_database.h"
#include "tests/support/collected_bands.h"

namespace varnel::company {
namespace {

constexpr std::int32_t kHistories = 5;  // The last is of the bank account in US dollars.

DemoOptions Small() {
    DemoOptions options;
    options.lines = 4'000;
    return options;
}

/// The demo company, and its reconciliations by the report.
class DemoReconciliationTest : public testing::Test {
  protected:
    static std::shared_ptr<CompanyHost> Open() {
        static const TemporaryFolder folder;
        const auto file = folder / "demo.db";
        if (!std::filesystem::exists(file)) CreateDemoCompany(file, Small());
        HostOptions options;
        options.message_sink = [](const std::string& text) { ADD_FAILURE() << text; };
        return OpenCompany(file, options);
    }

    /// The first row of a query that the test asks for itself.
    Row Ask(const std::string& query) { return RunQuery(host->Database(), query, {})->Current(); }
    Currency Sum(const std::string& what) {
        return Currency::FromScaled(Ask("SELECT coalesce(" + what + ", 0)").Integer64({0}));
    }

    /// The report of that record, refreshed; `figures` in the order of the summary.
    std::shared_ptr<IReport> Refreshed(std::int32_t history_id) {
        const auto report = clsReport().BankReconciliation();
        report->IReport_Application(host);
        report->IReport_Initialize();
        auto& properties = dynamic_cast<Object&>(*report);
        const Row record =
            Ask("SELECT ExAcctId, BankConcilDate FROM BankConcilHistory WHERE ID = " +
                std::to_string(history_id));
        properties.Put("ExConcilAcctId", record.Integer({0}));
        properties.Put("ConcDate", record.Day({1}));
        properties.Put("ExBankConcilHistoryId", history_id);
        properties.Call("RefreshTotalsWithBankConcilHistory", {});
        figures.clear();
        for (const char* name :
             {"EndBalAmnt", "DepAmntCirc", "ChqAmntCirc", "GLBalAmnt", "DifAmnt"})
            figures.push_back(properties.Get(name).ToCurrency());
        return report;
    }

    std::shared_ptr<CompanyHost> host = Open();
    std::vector<Currency> figures;
};

/// Absolute amounts of the account's lines to the date of reconciliation `h`, in its own currency.
std::string LineSum(std::int32_t history_id, const std::string& condition) {
    return "(SELECT sum(abs(" +
           Exact("CASE WHEN a.ExCurrencyId > 1 THEN g.ForeignAmnt ELSE g.DetAmnt END") +
           ")) FROM BankConcilHistory h JOIN GLDet g ON g.ExAcctId = h.ExAcctId AND "
           "g.DetDate <= h.BankConcilDate JOIN GLAcct a ON a.InGLAcctId = h.ExAcctId "
           "WHERE h.ID = " +
           std::to_string(history_id) + " AND " + condition + ")";
}

/// Total of the group with that caption.
Currency GroupTotal(const test::CollectedBands& bands, const std::string& caption) {
    std::string group;
    for (const auto& band : bands.bands) {
        if (band.section == "ghTransactionType") group = band.Text("lblTransactionType");
        if (band.section == "gfTransactionType" && group == caption)
            return std::get<Currency>(band["txtGroupTotal"].value);
    }
    return {};
}

TEST_F(DemoReconciliationTest, RefreshedFiguresAreThoseOfTheBanksStatement) {
    EXPECT_EQ(Ask("SELECT count(*) FROM BankConcilHistory").Integer({0}), kHistories);
    EXPECT_EQ(Ask("SELECT a.ExCurrencyId FROM BankConcilHistory h JOIN GLAcct a ON "
                  "a.InGLAcctId = h.ExAcctId WHERE h.ID = 5")
                  .Integer({0}),
              2);
    for (std::int32_t id = 1; id <= kHistories; ++id) {
        Refreshed(id);
        const Row statement = Ask(
            "SELECT EndBalAmnt, DepAmntCirc, ChqAmntCirc, GLBalAmnt, 0 FROM BankStatement WHERE "
            "ExBankConcilHistoryId = " +
            std::to_string(id));
        for (std::uint32_t i = 0; i < figures.size(); ++i)
            EXPECT_EQ(figures[i].ToText(), statement.Amount({i}).ToText()) << id << " " << i;
        EXPECT_EQ(figures[0] + figures[1] - figures[2], figures[3] - figures[4]) << id;
        EXPECT_FALSE(figures[0].IsZero()) << id;
    }
}

// Neither is listed among the outstanding ones, but the bank had not seen them either.
TEST_F(DemoReconciliationTest, WhatWasReconciledLaterIsInTheFiguresAndNotInTheList) {
    const std::string open = " AND coalesce(g.Conciliated, 0) = 0";
    Currency later_of_all;
    for (std::int32_t id = 1; id <= kHistories; ++id) {
        const auto report = Refreshed(id);
        const auto bands = test::Collect(*report->IReport_ReportDesigner());
        const std::string later = " AND g.ExBankConcilHistoryId > h.ID";
        const std::tuple<const char*, const char*, Currency> kGroups[] = {
            {"Outstanding deposits", "g.DetAmnt > 0", figures[1]},
            {"Outstanding withdrawals", "g.DetAmnt < 0", figures[2]}};
        for (const auto& [caption, sign, figure] : kGroups) {
            const Currency listed = GroupTotal(bands, caption);
            const Currency reconciled_later = Sum(LineSum(id, sign + later));
            EXPECT_EQ(listed.ToText(), Sum(LineSum(id, sign + open)).ToText()) << id << caption;
            EXPECT_EQ(figure.ToText(), (listed + reconciled_later).ToText()) << id << caption;
            later_of_all += reconciled_later;
        }
    }
    EXPECT_GT(later_of_all, Currency());
}

}  // namespace
}  // namespace varnel::company
