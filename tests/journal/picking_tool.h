#pragma once

#include <string>
#include <vector>

#include "host/application.h"

namespace varnel::test {

/// A filter tool whose user picked documents; it keeps the tables it was told.
class PickingTool final : public FilterTool {
  public:
    std::vector<std::string> picked;
    std::string tables;

    void SetTables(std::string_view names) override { tables = names; }
    std::vector<std::string> SelectedDocuments() override { return picked; }
    std::string Describe(std::string_view criteria) override { return std::string(criteria); }
    std::string DescribeOrdering(std::string_view ordering) override {
        return std::string(ordering);
    }
    std::string ResolveAccounts(std::string_view) override { return "-1"; }
};

}  // namespace varnel::test
