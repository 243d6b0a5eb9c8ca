#pragma once

#include <string>
#include <vector>

#include "framework/cls_report.h"
#include "tests/support/report_run.h"

namespace varnel::test {

/// Accounts of the host: in its home currency, and in yen, which have no decimals.
inline constexpr std::int32_t kBank = 1'010;
inline constexpr std::int32_t kYenBank = 1'040;

inline Variant Money(const char* amount) { return Currency::Parse(amount); }
inline Variant Day(const char* date) { return Date::ParseIso(date); }

/// An item of the reconciliation: 1 and 2 are reconciled, 3 and 4 outstanding. Items are numbered
/// from 1: "R1", "Item 1", "INV|1".
struct BankItem {
    std::int32_t type;
    Variant amount;
    Variant foreign = Variant::Null{};
    Variant date = Date::ParseIso("2025-02-10");
};

/// One of the two reconciliations, of `kBank` on 2025-03-31.
class BankRun : public ReportRun {
  public:
    /// `current` is the one over rows of the host's screen.
    explicit BankRun(bool current);

    Object& Properties() { return dynamic_cast<Object&>(*report); }
    /// In the order of the summary, without the adjusted balance.
    void SetFigures(const std::vector<const char*>& amounts);
    /// The five of them, "1.00|2.00|"; blank when unknown.
    std::string Figures();
    /// Answers the options dialog.
    void IncludeReconciled(bool include = true);
    void Refresh() { Properties().Call("RefreshTotalsWithBankConcilHistory", {}); }
    /// The host's rows: of the query, of the screen.
    RowSet Rows() const;
    /// Gives the report its rows. Part of a run.
    void Prepare();
    CollectedBands operator()();

    std::vector<BankItem> items;
    Variant note;  // Of all items, instead of reference and description.
    bool current;
};

inline BankRun SavedRun() { return BankRun(false); }
inline BankRun CurrentRun() { return BankRun(true); }

}  // namespace varnel::test
