#include "tests/company/host_small_company.h"

#include <sqlite3.h>
#include <unistd.h>

#include <filesystem>

#include "company/schema/schema.h"
#include "tests/support/memory_host.h"

namespace varnel::company {

namespace {

struct Close {
    void operator()(sqlite3* handle) const { sqlite3_close(handle); }
};
using Handle = std::unique_ptr<sqlite3, Close>;

Handle Open(const std::string& path) {
    sqlite3* handle = nullptr;
    if (sqlite3_open(path.c_str(), &handle) != SQLITE_OK) ADD_FAILURE() << "cannot open " << path;
    return Handle(handle);
}

std::shared_ptr<Application> OverDatabase() {
    static const CompanyFile file(kSmallCompany);
    return OpenCompany(file.Path());
}

bool InSegments(const test::LedgerLine& line, const std::string& clause) {
    if (line.segment_id == 0) return clause.find("IS NULL") != std::string::npos;
    return clause.find("IN (" + std::to_string(line.segment_id) + ")") != std::string::npos;
}

void FillCurrencies(test::MemoryCurrencyInfo& info) {
    info.records.push_back(
        {.id = 4, .code = "JPY", .description = "Yen", .decimals = 0, .ap_account_id = 20});
    info.records.push_back({.id = 2,
                            .code = "USD",
                            .description = "US dollar",
                            .ar_account_id = 12,
                            .ap_account_id = 21});
    info.rate_table[2] = {{Day("2024-12-31"), Rate::Parse("1.4")},
                          {Day("2025-01-31"), Rate::Parse("1.45255")}};
    info.rate_table[4] = {{Day("2025-01-10"), Rate::Parse("0.0095")}};
    info.control_account_ids = "12,20,21";
    info.unrealized_account_id = 51;
}

std::shared_ptr<Application> InMemory() {
    const auto host = std::make_shared<test::MemoryHost>();
    host->texts[2656] = "Debit";
    host->session_date = Day("2025-04-30");
    auto& company = host->company;
    company.settings["UseAccountNumbers"] = "True";
    company.account_params = {{"GLRtainEarn", 30}, {"GLCurntEarn", 33}, {"SuppGLAP", 20}};
    company.fiscal_year_starts = {Day("2023-07-01"), Day("2025-01-01")};
    company.item_adjustment_start = Day("2024-07-01");
    company.uses_projects = true;
    company.account_types = {{10, 1}, {11, 1}, {12, 1}, {20, 2}, {21, 2},
                             {30, 3}, {33, 3}, {40, 4}, {50, 5}, {51, 5}};
    company.account_currencies = {{11, 2}, {12, 2}, {21, 2}};
    company.in_segments = InSegments;
    company.ledger = {
        {10, Day("2024-03-10"), Amount("1000"), {}, 0, 1},
        {40, Day("2024-03-10"), Amount("-1000"), {}, 0, 1},
        {50, Day("2024-11-05"), Amount("300.10"), {}, 0, 2},
        {10, Day("2024-11-05"), Amount("-300.10"), {}, 0, 2},
        {11, Day("2025-01-15"), Amount("135"), Amount("100"), 7, 1},
        {40, Day("2025-01-15"), Amount("-135"), Amount("-100"), 7, 1},
        {50, Day("2025-02-20"), Amount("200.25"), {}, 8, 0},
        {10, Day("2025-02-20"), Amount("-200.25"), {}, 8, 0},
        {11, Day("2025-03-31"), Amount("-28.20"), Amount("-20"), 7, 2},
        {20, Day("2025-03-31"), Amount("28.20"), {}, 7, 2},
        {12, Day("2025-04-15"), Amount("140"), Amount("100")},
        {40, Day("2025-04-15"), Amount("-140"), Amount("-100")},
    };
    company.budgets = {{50, Day("2025-01-01"), Day("2025-01-31"), Amount("310")},
                       {50, Day("2025-02-01"), Day("2025-02-28"), Amount("100")},
                       {40, Day("2025-02-01"), Day("2025-02-28"), Amount("-100")},
                       {40, Day("2025-06-01"), Day("2025-06-02"), Amount("-0.01")},
                       {10, Day("2025-01-30"), Day("2025-02-01"), Amount("0.0074")},
                       {10, Day("2025-01-31"), Day("2025-02-02"), Amount("0.0074")}};
    FillCurrencies(company.currency_info);
    return host;
}

}  // namespace

const HostKind kHostKinds[2] = {{"Database", OverDatabase}, {"Memory", InMemory}};

// Account ids are not account numbers, so that neither is taken for the other.
const char* const kSmallCompany = R"sql(
INSERT INTO CompanySetting VALUES ('CompanyName', 'Small Company'), ('HomeCurrencyId', '1'),
    ('UseAccountNumbers', 'True'), ('ItemAdjustGL', 'True'),
    ('ItemAdjustStartDate', '2024-07-01'), ('SessionDate', '2025-04-30'), ('Unset', NULL);
INSERT INTO WorldCurrency VALUES (1, 'CAD', 'Canadian dollar', '$', 2, 0, 0),
    (2, 'USD', 'US dollar', 'US$', 2, 12, 21), (4, 'JPY', 'Yen', NULL, 0, NULL, 20);
INSERT INTO ExchangeRate VALUES (2, '2024-12-31', 1.4), (2, '2025-01-31', 1.45255),
    (4, '2025-01-10', 0.0095);
INSERT INTO AcctTypeInfo VALUES (1, 1, 'Assets', 0), (2, 1, 'Liabilities', 0),
    (3, 1, 'Equity', 0), (4, 2, 'Revenue', 0), (5, 2, 'Expenses', 0), (6, 2, 'Sundry', 1);
INSERT INTO GLAcct (InGLAcctId, GLAcctId, Descr, AcctType, GroupType, ExCurrencyId) VALUES
    (10, '1000', 'Bank', 1, 2, NULL), (11, '1010', 'Bank USD', 1, 2, 2),
    (12, '1200', 'Receivables USD', 1, 2, 2), (20, '2000', 'Payables', 2, 2, 0),
    (21, '2010', 'Payables USD', 2, 2, 2), (30, '3000', 'Retained earnings', 3, 2, NULL),
    (33, '3300', 'Current earnings', 3, 2, NULL),
    (40, '4000', 'Sales', 4, 2, NULL), (50, '5000', 'Rent', 5, 2, NULL),
    (51, '5900', 'Exchange', 5, 2, NULL);
INSERT INTO GLAccountParam VALUES ('Cie', 'GLRtainEarn', 30), ('Cie', 'GLCurntEarn', 33),
    ('Cie', 'SuppGLAP', 20),
    ('Cie', 'UnrealizedGainLoss', 51), ('Aux', 'GLRtainEarn', 99);
INSERT INTO FiscalYear VALUES (2, '2025', '2025-01-01', '2025-12-31'),
    (1, '2024', '2023-07-01', '2024-06-30');
INSERT INTO ProjInfo VALUES (7, 'P7', 'Kitchen'), (8, 'P8', 'Shop');
INSERT INTO GLDet (InGLDetId, SeqNo, DetDate, ExAcctId, DetAmnt, ForeignAmnt, ExProjId, ExSegmentId)
VALUES
    (1, 1, '2024-03-10', 10, 1000, NULL, NULL, 1), (2, 1, '2024-03-10', 40, -1000, NULL, NULL, 1),
    (3, 2, '2024-11-05', 50, 300.10, 0, NULL, 2), (4, 2, '2024-11-05', 10, -300.10, 0, NULL, 2),
    (5, 3, '2025-01-15', 11, 135, 100, 7, 1), (6, 3, '2025-01-15', 40, -135, -100, 7, 1),
    (7, 4, '2025-02-20', 50, 200.25, 0, 8, NULL), (8, 4, '2025-02-20', 10, -200.25, 0, 8, NULL),
    (9, 5, '2025-03-31', 11, -28.20, -20, 7, 2), (10, 5, '2025-03-31', 20, 28.20, NULL, 7, 2),
    (11, 6, '2025-04-15', 12, 140, 100, NULL, NULL),
    (12, 6, '2025-04-15', 40, -140, -100, NULL, NULL);
INSERT INTO AcctBudget VALUES (1, 50, '2025-01-01', '2025-01-31', 310),
    (2, 50, '2025-02-01', '2025-02-28', 100), (3, 40, '2025-02-01', '2025-02-28', -100),
    (4, 40, '2025-06-01', '2025-06-02', -0.01),
    (5, 10, '2025-01-30', '2025-02-01', 0.0074), (6, 10, '2025-01-31', '2025-02-02', 0.0074);
INSERT INTO BankConcilHistory VALUES (3, '2025-01-31', 10, 699.90), (1, '2024-12-31', 10, 699.90);
)sql";

CompanyFile::CompanyFile(const std::string& script) {
    static int count = 0;
    path_ = std::filesystem::temp_directory_path() /
            ("varnel-host-" + std::to_string(getpid()) + "-" + std::to_string(++count) + ".db");
    Run(kSchemaSql + script + kIndexesSql);
}

CompanyFile::~CompanyFile() {
    std::error_code ignored;
    std::filesystem::remove(path_, ignored);
}

void CompanyFile::Run(const std::string& script) const {
    const Handle handle = Open(path_);
    // One transaction that waits for no disk: a test has no power failure.
    const std::string quickly = "PRAGMA synchronous = OFF; BEGIN; " + script + "; COMMIT;";
    if (sqlite3_exec(handle.get(), quickly.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK)
        ADD_FAILURE() << sqlite3_errmsg(handle.get());
}

std::int64_t CompanyFile::Ask(const std::string& query) const {
    const Handle handle = Open(path_);
    sqlite3_stmt* statement = nullptr;
    sqlite3_prepare_v2(handle.get(), query.c_str(), -1, &statement, nullptr);
    if (sqlite3_step(statement) != SQLITE_ROW) ADD_FAILURE() << sqlite3_errmsg(handle.get());
    const std::int64_t value = sqlite3_column_int64(statement, 0);
    sqlite3_finalize(statement);
    return value;
}

}  // namespace varnel::company
