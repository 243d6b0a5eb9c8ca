#pragma once

#include <string>

#include "host/member_table.h"
#include "host/report.h"

namespace varnel::framework {

/// `IExcelAddInExport`, once for all reports that have it; a report says which template it fills,
/// and which projects it is about where it can be about some.
class ExcelAddInExport : public IExcelAddInExport {
  public:
    /// Adds its members, by the interface's names, to those of the report it is a part of.
    explicit ExcelAddInExport(MemberParts& members);

    std::string IExcelAddInExport_ProjectIds() override { return {}; }
};

}  // namespace varnel::framework
