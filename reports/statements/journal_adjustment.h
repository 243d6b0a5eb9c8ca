#pragma once

#include <memory>
#include <string>

#include "framework/designed_report.h"

namespace varnel::reports {

/// General journal adjustments: the line that an adjusting amount is in the journal, printed as a
/// part of the report that gives it the amount. A positive amount is a credit, the other way round
/// than in the journal.
class dsrGeneralJournalAdjust final : public framework::DesignedReport {
  public:
    explicit dsrGeneralJournalAdjust(std::shared_ptr<Application> application);

    void AdjustingAmount(Currency amount) { amount_ = amount; }

    void ActiveReport_ReportStart() override { delivered_ = false; }
    void ActiveReport_DataInitialize() override;
    void ActiveReport_FetchData(bool& end_of_data) override;

  private:
    /// Puts the amount on its side: into the fields of the row, or into the footer. Nothing when it
    /// is zero.
    void SegControlsValue(bool into_fields);
    /// Of the footer.
    void EmptyControls();

    void PageHeader_Format();
    void ReportFooter_Format();

    Currency amount_;
    bool fields_created_ = false;
    bool delivered_ = false;
    Column debit_, credit_, description_;
    std::string text_;
    Control& txtDebitTotal = At("txtDebitTotal");
    Control& txtCreditTotal = At("txtCreditTotal");
};

}  // namespace varnel::reports
