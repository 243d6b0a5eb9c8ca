#include "company/schema/schema_tables.h"

#include <array>
#include <stdexcept>
#include <string_view>

#include "company/schema/schema.h"
#include "drivers/sql_tokens.h"
#include "host/object.h"

namespace varnel::company {

namespace {

using Tokens = std::vector<drivers::SqlToken>;

struct TypeName {
    std::string_view name;
    SchemaType type;
};
constexpr std::array kTypeNames{
    TypeName{"INTEGER", SchemaType::kInteger},   TypeName{"SMALLINT", SchemaType::kInteger},
    TypeName{"RealAmount", SchemaType::kAmount}, TypeName{"RealRate", SchemaType::kRate},
    TypeName{"DATE", SchemaType::kDate},         TypeName{"BookText", SchemaType::kText},
};

SchemaType TypeCalled(std::string_view name) {
    for (const auto& type : kTypeNames)
        if (SameName(type.name, name)) return type.type;
    throw std::logic_error("the schema has a column of type " + std::string(name));
}

/// Reads what is between the parentheses from `at` on, and moves it behind them.
SchemaTable ReadTable(const Tokens& tokens, std::size_t& at) {
    SchemaTable table{std::string(tokens[at - 1].text), {}};
    int depth = 0;
    do {
        const auto text = tokens[at].text;
        const bool starts_item = (depth == 0 && text == "(") || (depth == 1 && text == ",");
        if (text == "(") ++depth;
        if (text == ")") --depth;
        if (starts_item && !SameName(tokens[at + 1].text, "PRIMARY"))
            table.columns.push_back(
                {std::string(tokens[at + 1].text), TypeCalled(tokens[at + 2].text)});
        ++at;
    } while (depth > 0);
    return table;
}

}  // namespace

std::string SchemaTable::ColumnList() const {
    std::string list;
    for (const auto& column : columns) list += (list.empty() ? "" : ", ") + column.name;
    return list;
}

std::vector<SchemaTable> SchemaTables() {
    const std::string schema = kSchemaSql;
    const Tokens tokens = drivers::TokenizeSql(schema);
    std::vector<SchemaTable> tables;
    for (std::size_t at = 0; at + 3 < tokens.size(); ++at) {
        if (!SameName(tokens[at].text, "CREATE") || !SameName(tokens[at + 1].text, "TABLE"))
            continue;
        at += 3;
        tables.push_back(ReadTable(tokens, at));
    }
    return tables;
}

}  // namespace varnel::company
