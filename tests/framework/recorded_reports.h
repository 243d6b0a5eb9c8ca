#pragma once

#include <span>
#include <string>
#include <vector>

#include "framework/catalogue.h"
#include "framework/report_base.h"

namespace varnel::test {

/// A report of any class that takes every option and remembers it.
class RecordedReport final : public framework::ReportBase {
  public:
    explicit RecordedReport(const Layout& layout) : ReportBase(layout, {}) {}
    void Put(std::string_view name, const Variant& value) override;

    /// "HideInactiveAccounts = True", in the order they came.
    std::vector<std::string> options;
};

/// The catalogue of this program: every class of the library, as a RecordedReport.
std::span<framework::CatalogueEntry> RecordedCatalogue();
std::span<framework::PublicClass> RecordedClasses();

}  // namespace varnel::test
