#include "bench/wide_chart.h"

#include <sqlite3.h>

#include <memory>
#include <stdexcept>

namespace varnel::bench {

namespace {

constexpr const char* kWiden =
    "BEGIN;"
    "WITH RECURSIVE copies(n) AS (SELECT 1 UNION ALL SELECT n + 1 FROM copies WHERE n < 7) "
    "INSERT INTO GLAcct SELECT InGLAcctId + 10000 * n, GLAcctId || '-' || n, Descr || ' ' || n, "
    "AcctType, GroupType, Inactive, ChqAcct, Note, GIFIAcctId, ExCurrencyId FROM GLAcct, copies "
    "WHERE InGLAcctId < 10000;"
    "UPDATE GLDet SET ExAcctId = ExAcctId + 10000 * (InGLDetId % 8);"
    "COMMIT; ANALYZE;";

}  // namespace

void WidenChart(const std::string& company) {
    sqlite3* raw = nullptr;
    const int opened = sqlite3_open(company.c_str(), &raw);
    const std::unique_ptr<sqlite3, decltype(&sqlite3_close)> database(raw, sqlite3_close);
    if (opened != SQLITE_OK || sqlite3_exec(raw, kWiden, nullptr, nullptr, nullptr) != SQLITE_OK)
        throw std::runtime_error("cannot widen the chart of " + company + ": " +
                                 sqlite3_errmsg(raw));
}

}  // namespace varnel::bench
