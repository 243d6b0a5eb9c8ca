#pragma once

#include <string>
#include <vector>

#include "company/texts/texts.h"
#include "host/application.h"

namespace varnel::company {

/// The filter tool that is given to reports. It must not be used after the database is gone.
class CompanyFilterTool final : public FilterTool {
  public:
    CompanyFilterTool(CompanyDatabase& database, Language language)
        : database_(database), language_(language) {}

    /// Keys of the documents that a report is limited to; none at first.
    void SelectDocuments(std::vector<std::string> keys) { documents_ = std::move(keys); }
    const std::vector<std::string>& Tables() const { return tables_; }

    void SetTables(std::string_view tables) override;
    std::vector<std::string> SelectedDocuments() override { return documents_; }
    std::string Describe(std::string_view criteria) override;
    std::string DescribeOrdering(std::string_view ordering) override;
    /// Criteria may name columns of GLAcct, and qualified ones of GLDet, WorldCurrency, ProjInfo
    /// and Segment: an account matches when one of its lines does. Qualified columns of
    /// CurrPmtDet_View match the accounts that a payment names. Empty criteria match every account.
    std::string ResolveAccounts(std::string_view criteria) override;

  private:
    CompanyDatabase& database_;
    Language language_;
    std::vector<std::string> tables_;
    std::vector<std::string> documents_;
};

}  // namespace varnel::company
