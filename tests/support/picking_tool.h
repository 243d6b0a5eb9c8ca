#pragma once

#include <string>
#include <vector>

#include "host/application.h"

namespace varnel::test {

/// A filter tool whose user picked documents; it keeps the tables it was told and puts criteria
/// into words by quoting them.
class PickingTool final : public FilterTool {
  public:
    std::vector<std::string> picked;
    std::string tables;

    void SetTables(std::string_view names) override { tables = names; }
    std::vector<std::string> SelectedDocuments() override { return picked; }
    std::string Describe(std::string_view criteria) override { return Quoted(criteria); }
    std::string DescribeOrdering(std::string_view ordering) override { return Quoted(ordering); }
    std::string ResolveAccounts(std::string_view) override { return "-1"; }

  private:
    static std::string Quoted(std::string_view text) { return "<" + std::string(text) + ">"; }
};

}  // namespace varnel::test
