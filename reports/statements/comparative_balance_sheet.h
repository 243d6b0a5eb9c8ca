#pragma once

#include "reports/statements/balance_sheet.h"

namespace varnel::reports {

/// Comparative balance sheet: the balance sheet with that of the same day a year earlier beside it,
/// and how far it is from that in amount and percent.
class dsrComparativeBalanceSheet final : public dsrBalanceSheet {
  public:
    dsrComparativeBalanceSheet();

    std::string IExcelAddInExport_ExcelAddInTemplate() override {
        return "ComparativeBalanceSheet";
    }

  protected:
    std::vector<std::optional<Date>> ClosingDates() override;
    void SetColumnCaptions() override;
    dsrBalanceSheetAjust::Layouts AdjustmentStyle() const override {
        return dsrBalanceSheetAjust::Layouts::kComparative;
    }
};

}  // namespace varnel::reports
