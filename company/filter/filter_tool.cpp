#include "company/filter/filter_tool.h"

#include <array>

#include "company/filter/filter_words.h"
#include "company/services/id_list.h"
#include "company/services/query.h"

namespace varnel::company {

namespace {

struct JoinedTable {
    std::string_view table, on;
    bool through_lines;
};

constexpr std::array kJoinedTables{
    JoinedTable{"WorldCurrency", "GLAcct.ExCurrencyId = WorldCurrency.InCurrencyId", false},
    JoinedTable{"ProjInfo", "GLDet.ExProjId = ProjInfo.InProjId", true},
    JoinedTable{"Segment", "GLDet.ExSegmentId = Segment.InSegmentId", true},
    JoinedTable{"CurrPmtDet_View", "CurrPmtDet_View.ExGLAcctId = GLAcct.InGLAcctId", false},
};

std::string FromClause(std::string_view criteria) {
    bool lines = NamesTable(criteria, "GLDet");
    std::string joins;
    for (const auto& [table, on, through_lines] : kJoinedTables) {
        if (!NamesTable(criteria, table)) continue;
        lines = lines || through_lines;
        joins += " LEFT JOIN " + std::string(table) + " ON " + std::string(on);
    }
    const char* accounts =
        lines ? "GLAcct INNER JOIN GLDet ON GLAcct.InGLAcctId = GLDet.ExAcctId" : "GLAcct";
    return accounts + joins;
}

std::string Trimmed(std::string_view text) {
    const auto first = text.find_first_not_of(" \t\r\n");
    if (first == std::string_view::npos) return {};
    return std::string(text.substr(first, text.find_last_not_of(" \t\r\n") - first + 1));
}

}  // namespace

void CompanyFilterTool::SetTables(std::string_view tables) {
    tables_.clear();
    while (!tables.empty()) {
        const auto comma = tables.find(',');
        std::string table = Trimmed(tables.substr(0, comma));
        if (!table.empty()) tables_.push_back(std::move(table));
        tables.remove_prefix(comma == std::string_view::npos ? tables.size() : comma + 1);
    }
}

std::string CompanyFilterTool::Describe(std::string_view criteria) {
    return DescribeCriteria(criteria, language_);
}

std::string CompanyFilterTool::DescribeOrdering(std::string_view ordering) {
    return DescribeOrder(ordering, language_);
}

std::string CompanyFilterTool::ResolveAccounts(std::string_view criteria) {
    std::string text = "SELECT DISTINCT GLAcct.InGLAcctId FROM " + FromClause(criteria);
    if (!Trimmed(criteria).empty()) text += " WHERE (" + std::string(criteria) + ")";
    text += " ORDER BY GLAcct.InGLAcctId";
    std::string ids;
    for (const auto rows = Query(database_, text); !rows->AtEnd(); rows->MoveNext())
        AppendId(rows->Current().Integer(Column{0}), ids);
    return ListOrNone(std::move(ids));
}

}  // namespace varnel::company
