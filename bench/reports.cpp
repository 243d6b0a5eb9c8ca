#include "bench/reports.h"

#include "bench/floors.h"

namespace varnel::bench {

namespace {

using Options = std::vector<std::string>;

Options NoOptions(const std::string&) { return {}; }

std::string ControlAccounts(const std::string& company) {
    return ReadCell(
        company,
        "SELECT group_concat(Id) FROM (SELECT ARGLAccountId AS Id FROM WorldCurrency UNION SELECT "
        "APGLAccountId FROM WorldCurrency UNION SELECT ExAcctId FROM GLAccountParam WHERE "
        "ParamName "
        "IN ('CustGLAR', 'SuppGLAP')) WHERE Id > 0");
}

std::string UnrealizedExchange(const std::string& company) {
    return "SELECT GLAcct.InGLAcctId, GLAcct.GLAcctId, GLDet.ExCurrencyId, GLDet.DetDate, "
           "GLDet.SeqNo, GLDet.DetDesc, GLDet.ExChangeRate, SUM(ForeignAmnt) As AcctBalForeign, "
           "SUM(DetAmnt) As AcctBalHome, WorldCurrency.CurrencyCode, WorldCurrency.Descr "
           "FROM (GLAcct INNER JOIN GLDet ON GLAcct.InGLAcctId = GLDet.ExAcctId) LEFT JOIN "
           "WorldCurrency on GLDet.ExCurrencyID = WorldCurrency.InCurrencyId WHERE ((ChqAcct <> 0 "
           "AND GLAcct.ExCurrencyId <> 1) OR InGLAcctId IN ( " +
           ControlAccounts(company) +
           ") OR InGLAcctId IN ( -1)) AND GLDet.ExCurrencyId <> 1 AND GLDet.DetDate <= "
           "'9999-12-31' GROUP BY WorldCurrency.CurrencyCode, WorldCurrency.Descr, "
           "GLAcct.GLAcctId, GLAcct.InGLAcctId, GLDet.ExCurrencyId, GLDet.DetDate, GLDet.SeqNo, "
           "GLDet.ExChangeRate, GLDet.DetDesc ORDER BY WorldCurrency.CurrencyCode, "
           "GLAcct.GLAcctId, GLDet.DetDate, GLDet.SeqNo";
}

/// The account that has most lines in foreign currency, and that currency: "1043|2".
std::string BusiestForeignAccount(const std::string& company, const std::string& columns) {
    return ReadCell(company, "SELECT " + columns +
                                 " FROM GLDet INNER JOIN GLAcct ON InGLAcctId = ExAcctId INNER "
                                 "JOIN WorldCurrency ON InCurrencyId = GLDet.ExCurrencyId WHERE "
                                 "GLDet.ExCurrencyId <> 1 GROUP BY ExAcctId, GLDet.ExCurrencyId "
                                 "ORDER BY COUNT(*) DESC LIMIT 1");
}

Options BusiestAccountOptions(const std::string& company) {
    return {"--account", BusiestForeignAccount(company, "GLAcct.GLAcctId"), "--currency",
            BusiestForeignAccount(company, "CurrencyCode")};
}

std::string UnrealizedExchangeDetail(const std::string& company) {
    return "SELECT GLAcct.InGLAcctId, GLDet.ExCurrencyId, GLDet.DetDate, ForeignAmnt As "
           "AcctBalForeign, DetAmnt As AcctBalHome, GLDet.DetDesc, GLDet.Source, "
           "GLDet.ExSrcKeyVal, WorldCurrency.CurrencyCode, WorldCurrency.Descr FROM (GLAcct INNER "
           "JOIN GLDet ON GLAcct.InGLAcctId = GLDet.ExAcctId) LEFT JOIN WorldCurrency on "
           "GLDet.ExCurrencyID = WorldCurrency.InCurrencyId WHERE " +
           BusiestForeignAccount(company,
                                 "'GLDet.ExCurrencyId = ' || GLDet.ExCurrencyId || ' AND "
                                 "InGLAcctId  = ' || ExAcctId") +
           " AND GLDet.DetDate BETWEEN '1899-12-31' AND '9999-12-31'  ORDER BY DetDate, SeqNo ";
}

std::string RealizedExchange(const std::string&) {
    return "SELECT CurrPmtDet_View.PmtAmnt, CurrPmtDet_View.PmtDisc, "
           "CurrPmtDet_View.ExchangeRate, CurrPmtDet_View.PmtRate, CurrPmtDet_View.CurrPmtType, "
           "CurrPmtDet_View.Source, CurrPmtDet_View.InInvoiId, CurrPmtDet_View.InPmtId, "
           "CurrPmtDet_View.ExCurrencyId, CurrPmtDet_View.ExGLAcctId, CurrPmtDet_View.PmtDate, "
           "CurrPmtDet_View.Name, CurrPmtDet_View.InvoiId, CurrPmtDet_View.ChqNo, "
           "WorldCurrency.CurrencyCode, WorldCurrency.Descr, (WorldCurrency.CurrencyCode || ' - ' "
           "|| WorldCurrency.Descr) AS FullCurrencyDescr FROM CurrPmtDet_View LEFT JOIN "
           "WorldCurrency ON WorldCurrency.InCurrencyId = CurrPmtDet_View.ExCurrencyId WHERE "
           "CurrPmtDet_View.PmtDate BETWEEN '1899-12-31' AND '9999-12-31' AND "
           "CurrPmtDet_View.ExCurrencyId <> 1 ORDER BY  ExCurrencyId, CurrPmtType, "
           "CurrPmtDet_View.PmtDate, CurrPmtDet_View.ChqNo ";
}

Options WholeYears(const std::string&) { return {"--from", "2024-11-01", "--to", "2026-10-31"}; }

/// All that a summary needs of the ledger: one sum an account over the covering index.
std::string SumsByAccount(const std::string&) {
    return "SELECT ExAcctId, SUM(DetAmnt), SUM(ForeignAmnt) FROM GLDet GROUP BY ExAcctId";
}

std::string TrialBalanceDetail(const std::string&) {
    return "SELECT SubQuery.*, AcctType, InGlAcctId, GLAcctId, GLAcct.ExCurrencyId, GLAcct.Descr, "
           "WorldCurrency.CurrencyCode FROM (GLAcct LEFT JOIN (Select InGLDetId, DetDate, DetAmnt, "
           "ForeignAmnt, GLDet.ExCurrencyId as GLDetExCurrencyId, Source, ExSrcKeyVal, DetDesc, "
           "SeqNo, ExAcctId FROM GLDet WHERE GLDet.DetAmnt <> 0 AND GLDet.DetDate BETWEEN "
           "'2024-11-01' AND '2026-10-31' ) as SubQuery ON GLAcct.InGLAcctId = SubQuery.ExAcctId) "
           "LEFT JOIN WorldCurrency ON GLAcct.ExCurrencyId = WorldCurrency.InCurrencyId ORDER BY "
           "GLAcct.GLAcctId, SubQuery.DetDate, SubQuery.SeqNo";
}

/// The lines of every entry in the order of the entries.
std::string GeneralLedger(const std::string&) {
    return "SELECT GLDet.InGLDetId, GLDet.ExCurrencyId, GLDet.SeqNo, GLDet.DetAmnt, "
           "GLDet.ForeignAmnt, GLDet.DetDate, GLDet.DetDesc, GLDet.DetRef, GLDet.Source, "
           "GLDet.ExSrcKeyVal, GLDet.Remarks, GLDet.ExProjId, GLAcct.GLAcctId, GLAcct.Descr, "
           "ProjInfo.ProjId, WorldCurrency.InCurrencyId, WorldCurrency.CurrencyCode, "
           "WorldCurrency.CurrencyCode || ' - ' || WorldCurrency.Descr As CurrencyFullDescr FROM "
           "(((GLDet GLDet LEFT OUTER JOIN GJTrxHdr GJTrxHdr ON GLDet.ExSrcKeyVal = "
           "GJTrxHdr.InTrxId) LEFT OUTER JOIN ProjInfo ProjInfo ON GLDet.ExProjId = "
           "ProjInfo.InProjId) LEFT OUTER JOIN GLAcct GLAcct ON GLDet.ExAcctId = "
           "GLAcct.InGLAcctId) LEFT JOIN WorldCurrency ON WorldCurrency.InCurrencyId = "
           "GLDet.ExCurrencyId WHERE GLDet.DetDate BETWEEN '2024-11-01' AND '2026-10-31'  ORDER BY "
           "GLDet.SeqNo, GLDet.InGLDetId";
}

std::string GeneralLedgerByAccount(const std::string&) {
    return "SELECT GLDet.InGLDetId, GLDet.DetDate, GLDet.SeqNo, GLDet.Source, GLDet.ExSrcKeyVal, "
           "GLDet.DetRef, GLDet.DetDesc, GLDet.Remarks, GLDet.DetAmnt, GLDet.ForeignAmnt, "
           "GLDet.ExCurrencyId AS GLDetExCurrencyId, GLAcct.AcctType, GLAcct.InGLAcctId, "
           "GLAcct.GLAcctId, GLAcct.ExCurrencyId, GLAcct.Descr, GLAcct.GroupType FROM GLAcct LEFT "
           "JOIN GLDet ON GLAcct.InGLAcctId = GLDet.ExAcctId AND GLDet.DetDate BETWEEN "
           "'2024-11-01' AND '2026-10-31' ORDER BY GLAcct.GLAcctId, GLDet.DetDate, GLDet.SeqNo, "
           "GLDet.InGLDetId";
}

std::string SumsBetween(const std::string& from, const std::string& to) {
    return "SELECT ExAcctId, SUM(DetAmnt), SUM(ForeignAmnt) FROM GLDet WHERE GLDet.DetDate BETWEEN "
           "'" +
           from + "' AND '" + to + "' GROUP BY ExAcctId";
}

Options LastQuarter(const std::string&) { return {"--from", "2026-08-01", "--to", "2026-10-31"}; }

/// The sums of the period and of the fiscal year so far.
std::string IncomeStatement(const std::string&) {
    return SumsBetween("2026-08-01", "2026-10-31") + " UNION ALL " +
           SumsBetween("2026-01-01", "2026-10-31");
}

Options AtYearEnd(const std::string&) { return {"--to", "2025-12-31"}; }

/// The sums up to the closing date, and those before its fiscal year.
std::string BalanceSheet(const std::string&) {
    return SumsBetween("1899-12-31", "2025-12-31") + " UNION ALL " +
           SumsBetween("1899-12-31", "2024-12-31");
}

/// The same with that of the period a year before.
std::string ComparativeIncomeStatement(const std::string& company) {
    return IncomeStatement(company) + " UNION ALL " + SumsBetween("2025-08-01", "2025-10-31");
}

/// The same at both closing dates.
std::string ComparativeBalanceSheet(const std::string& company) {
    return BalanceSheet(company) + " UNION ALL " + SumsBetween("1899-12-31", "2024-12-31") +
           " UNION ALL " + SumsBetween("1899-12-31", "2023-12-31");
}

/// The bank account that has most lines: of each hundred some five are outstanding.
std::string BusiestBankAccount(const std::string& company, const std::string& column) {
    return ReadCell(company, "SELECT " + column +
                                 " FROM GLDet INNER JOIN GLAcct ON InGLAcctId = ExAcctId WHERE "
                                 "ChqAcct <> 0 GROUP BY ExAcctId ORDER BY COUNT(*) DESC LIMIT 1");
}

Options BusiestBankStatement(const std::string& company) {
    return {"--account",        BusiestBankAccount(company, "GLAcct.GLAcctId"),
            "--statement-date", "2026-10-31",
            "--ending-balance", "0"};
}

std::string BankReconciliation(const std::string& company) {
    return "SELECT GLDet.DetDate, GLDet.DetRef, GLDet.DetDesc, GLDet.ForeignAmnt, GLDet.DetAmnt, "
           "GLDet.Source, GLDet.ExSrcKeyVal, GLAcct.ExCurrencyId, IIF(DetAmnt < 0, 3, 4) AS "
           "TransactionType FROM GLDet INNER JOIN GLAcct ON GLDet.ExAcctId = GLAcct.InGLAcctId "
           "WHERE GLDet.DetAmnt <> 0 AND (GLDet.Conciliated = 0 OR GLDet.Conciliated IS NULL) AND "
           "GLDet.ExAcctId = " +
           BusiestBankAccount(company, "ExAcctId") +
           " AND GLDet.DetDate <= '2026-10-31' ORDER BY TransactionType, GLDet.DetDate, "
           "GLDet.DetRef";
}

constexpr ReportCase kCases[] = {
    {"trial-balance-summary", NoOptions, SumsByAccount, true},
    {"trial-balance-detail", WholeYears, TrialBalanceDetail, true},
    {"gifi", NoOptions, SumsByAccount, true},
    {"general-ledger", WholeYears, GeneralLedger, true},
    {"general-ledger-by-account", WholeYears, GeneralLedgerByAccount, true},
    {"income-statement", LastQuarter, IncomeStatement, true},
    {"balance-sheet", AtYearEnd, BalanceSheet, true},
    {"comparative-income-statement", LastQuarter, ComparativeIncomeStatement, true},
    {"comparative-balance-sheet", AtYearEnd, ComparativeBalanceSheet, true},
    {"bank-reconciliation", BusiestBankStatement, BankReconciliation},
    {"unrealized-exchange", NoOptions, UnrealizedExchange},
    {"unrealized-exchange-detail", BusiestAccountOptions, UnrealizedExchangeDetail},
    {"realized-exchange", NoOptions, RealizedExchange},
};

}  // namespace

std::span<const ReportCase> ReportCases() { return kCases; }

}  // namespace varnel::bench
