#include "company/demo/demo_company.h"

#include <string>

#include "company/demo/books.h"
#include "company/demo/keeper.h"
#include "company/demo/master_data.h"
#include "company/writing/company_writer.h"
#include "host/error.h"

namespace varnel::company {
namespace {

void CheckLines(const DemoOptions& options) {
    if (options.lines >= kDemoLinesMin && options.lines <= kDemoLinesMax) return;
    throw Error(error_number::kInvalidArgument, "demo company",
                "a demo company has from " + std::to_string(kDemoLinesMin) + " to " +
                    std::to_string(kDemoLinesMax) + " ledger lines, not " +
                    std::to_string(options.lines));
}

void Fill(demo::Database& database, const DemoOptions& options) {
    demo::Books books(database, options.lines, options.seed);
    demo::WriteMasterData(database, books.rates);
    demo::WriteBudgets(database, options.lines);
    demo::KeepBooks(books, options.lines, [&](std::int64_t done) {
        if (options.progress) options.progress(done, options.lines);
        if (options.cancelled && options.cancelled())
            throw Error(error_number::kOther, "demo company", "stopped before it was complete");
    });
    books.BankReconciliations().Write(database);
}

}  // namespace

void CreateDemoCompany(const std::string& address, const DemoOptions& options) {
    CheckLines(options);
    const auto database = NewCompany(ParseCompanyAddress(address), options);
    Fill(*database, options);
    database->Finish();
}

}  // namespace varnel::company
