#include "framework/excel_add_in_export.h"

namespace varnel::framework {

namespace {

constexpr Member<ExcelAddInExport> kMembers[] = {
    {"IExcelAddInExport_ProjectIds",
     [](ExcelAddInExport& r) -> Variant { return r.IExcelAddInExport_ProjectIds(); }},
    {"IExcelAddInExport_ExcelAddInTemplate",
     [](ExcelAddInExport& r) -> Variant { return r.IExcelAddInExport_ExcelAddInTemplate(); }},
};

}  // namespace

ExcelAddInExport::ExcelAddInExport(MemberParts& members) {
    members.Add<ExcelAddInExport>(*this, kMembers);
}

}  // namespace varnel::framework
