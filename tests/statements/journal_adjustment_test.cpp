#include "reports/statements/journal_adjustment.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/statements/statement_run.h"

namespace varnel::test {
namespace {

using reports::dsrGeneralJournalAdjust;
using testing::ElementsAre;

std::string RowOf(const CollectedBands& bands) {
    const auto rows = Shown(bands, "Detail", {"txtAccountDescr", "txtDebit", "txtCredit"});
    return rows.size() == 1 ? rows[0] : std::to_string(rows.size()) + " rows";
}

std::string FooterOf(const CollectedBands& bands) {
    return Shown(bands, "ReportFooter", {"lblTotal", "txtDebitTotal", "txtCreditTotal"}).at(0);
}

TEST(JournalAdjustmentTest, APositiveAmountIsACreditInEachRunAnew) {
    struct Sided {
        const char *amount, *row, *footer;
    };
    constexpr Sided kCases[] = {{"-125.50", "8571|125.50|", "1641|125.50|"},
                                {"125.50", "8571||125.50", "1641||125.50"},
                                {"125.50", "8571||125.50", "1641||125.50"},
                                {"-0.01", "8571|0.01|", "1641|0.01|"},
                                {"0", "||", "||"}};
    const auto report = std::make_shared<dsrGeneralJournalAdjust>(std::make_shared<MemoryHost>());
    for (const auto& tried : kCases) {
        report->AdjustingAmount(Currency::Parse(tried.amount));
        const auto bands = Collect(*report);
        EXPECT_EQ(RowOf(bands), tried.row) << tried.amount;
        EXPECT_EQ(FooterOf(bands), tried.footer) << tried.amount;
        EXPECT_THAT(bands.Texts("PageHeader", "lblTitle"), ElementsAre("8323"));
    }
}

}  // namespace
}  // namespace varnel::test
