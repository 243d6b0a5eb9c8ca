#include "company/writing/control_figures.h"

namespace varnel::company {

namespace {

using Kind = ControlFigure::Kind;

std::string Scaled(const std::string& name, const char* scale) {
    return "CAST(ROUND(" + name + " * " + scale + ") AS BIGINT)";
}

/// Of a date: 20250331.
std::string Digits(const std::string& name) {
    return "CAST(REPLACE(CAST(" + name + " AS CHAR(10)), '-', '') AS BIGINT)";
}

std::string Sum(const std::string& value) { return "CAST(SUM(" + value + ") AS BIGINT)"; }

/// The whole numbers of an amount: the order of operations leaves nothing to round in a sum.
std::string Side(const std::string& name, char comparison) {
    return Sum("CASE WHEN " + name + ' ' + comparison + " 0 THEN " + Scaled(name, "10000") +
               " ELSE 0 END");
}

std::string Expression(const ControlFigure& figure, const SchemaColumn& column) {
    switch (figure.kind) {
        case Kind::kRows:
            return "COUNT(*)";
        case Kind::kValues:
            return "COUNT(" + column.name + ")";
        case Kind::kDebits:
            return Side(column.name, '>');
        case Kind::kCredits:
            return Side(column.name, '<');
        case Kind::kOther:
            break;
    }
    if (column.type == SchemaType::kText) return Sum("LENGTH(" + column.name + ")");
    if (column.type == SchemaType::kDate) return Sum(Digits(column.name));
    return Sum(column.type == SchemaType::kRate ? Scaled(column.name, "100000000") : column.name);
}

}  // namespace

std::vector<ControlFigure> ControlFigures(const SchemaTable& table) {
    std::vector<ControlFigure> figures{{Kind::kRows, 0}};
    for (std::size_t i = 0; i < table.columns.size(); ++i) {
        figures.push_back({Kind::kValues, i});
        const auto type = table.columns[i].type;
        if (type == SchemaType::kAmount) {
            figures.push_back({Kind::kDebits, i});
            figures.push_back({Kind::kCredits, i});
        } else {
            figures.push_back({Kind::kOther, i});
        }
    }
    return figures;
}

std::string ControlQuery(const SchemaTable& table) {
    std::string query;
    for (const auto& figure : ControlFigures(table))
        query +=
            (query.empty() ? "SELECT " : ", ") + Expression(figure, table.columns[figure.column]);
    return query + " FROM " + table.name;
}

}  // namespace varnel::company
