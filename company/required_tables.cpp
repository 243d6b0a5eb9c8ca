#include "company/required_tables.h"

#include <array>
#include <string_view>

#include "company/services/query.h"
#include "drivers/query_error.h"
#include "host/error.h"

namespace varnel::company {

namespace {

struct RequiredTable {
    std::string_view name;
    std::string_view columns;  // Separated by blanks.
};

constexpr std::array kRequiredTables{
    RequiredTable{"WorldCurrency",
                  "InCurrencyId CurrencyCode Descr Decimals ARGLAccountId APGLAccountId"},
    RequiredTable{"GLAcct",
                  "InGLAcctId GLAcctId Descr AcctType GroupType Inactive ChqAcct Note GIFIAcctId "
                  "ExCurrencyId"},
    RequiredTable{"ProjInfo", "InProjId ProjId Descr"},
    RequiredTable{"GJTrxHdr", "InTrxId TrxDate TrxDesc TrxRef"},
    RequiredTable{"Segment", "InSegmentId SegmentCode Descr"},
    RequiredTable{"GLDet",
                  "InGLDetId ExAcctId ExCurrencyId SeqNo DetDate DetAmnt ForeignAmnt ExChangeRate "
                  "DetDesc DetRef Source ExSrcKeyVal Remarks ExProjId ExSegmentId Conciliated "
                  "ExBankConcilHistoryId"},
    RequiredTable{"FiscalYear", "InFiscalYearId BegDate EndDate"},
    RequiredTable{"FiscalYearDet", "InFiscalYearDetId ExFiscalYearId PeriodNo BegDate EndDate"},
    RequiredTable{"BankConcilHistory", "ID BankConcilDate ExAcctId EndBalAmnt"},
    RequiredTable{"AcctBudget", "ExAcctId BegDate EndDate BudgetAmnt"},
    RequiredTable{"ExchangeRate", "ExCurrencyId RateDate Rate"},
    RequiredTable{"AcctTypeInfo", "AcctType TypeClass Descr AdditionalIncome"},
    RequiredTable{"CompanySetting", "SettingName SettingValue"},
    RequiredTable{"GLAccountParam", "Section ParamName ExAcctId"},
    RequiredTable{"CurrPmtDet_View",
                  "PmtAmnt PmtDisc ExchangeRate PmtRate CurrPmtType Source InInvoiId InPmtId "
                  "ExCurrencyId ExGLAcctId PmtDate Name InvoiId ChqNo ExSegmentId"},
};

[[noreturn]] void RaiseNotACompany(const std::string& database_name, const std::string& fault) {
    throw Error(error_number::kDatabase, "Company",
                database_name + " is not a company database of this version: " + fault);
}

/// Not locked or forbidden: the table is not there.
bool IsMissing(const Error& error) {
    const auto* const query_error = dynamic_cast<const drivers::QueryError*>(&error);
    return query_error != nullptr && query_error->Fault() == drivers::QueryFault::kMissingTable;
}

std::shared_ptr<Recordset> NoRowsOf(CompanyDatabase& database, const std::string& table,
                                    const std::string& database_name) {
    try {
        return Query(database, "SELECT * FROM " + table + " WHERE 1 = 0");
    } catch (const Error& error) {
        const std::string fault =
            "table " + table + " cannot be read (" + error.Description() + ")";
        if (IsMissing(error)) RaiseNotACompany(database_name, fault);
        throw Error(error_number::kDatabase, "Company", database_name + ": " + fault);
    }
}

void RequireColumns(const Columns& columns, const RequiredTable& table,
                    const std::string& database_name) {
    std::string_view left = table.columns;
    while (!left.empty()) {
        const auto end = left.find(' ');
        const auto column = left.substr(0, end);
        if (!columns.Find(column).Valid())
            RaiseNotACompany(database_name, "table " + std::string(table.name) + " has no column " +
                                                std::string(column));
        left.remove_prefix(end == std::string_view::npos ? left.size() : end + 1);
    }
}

}  // namespace

void RequireCompanyTables(CompanyDatabase& database, const std::string& database_name) {
    // A file that cannot be read at all has an error of its own, which is better than ours.
    Query(database, "SELECT 1");
    for (const auto& table : kRequiredTables)
        RequireColumns(NoRowsOf(database, std::string(table.name), database_name)->GetColumns(),
                       table, database_name);
}

}  // namespace varnel::company
