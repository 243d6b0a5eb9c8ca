#include "cli/reconciliation_rows.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <fstream>
#include <iostream>
#include <vector>

#include "cli/csv_records.h"
#include "cli/errors.h"
#include "cli/exact_amount.h"
#include "drivers/memory_recordset.h"
#include "host/object.h"
#include "reports/bank/reconciliation_query.h"

namespace varnel::cli {

namespace {

Variant ReadText(const std::string& text) { return text; }

Variant ReadAmount(const std::string& text) { return ReadExactAmount(text); }

Variant ReadDay(const std::string& text) {
    Date date;
    if (!Date::TryParseIso(text, date))
        throw UsageError("\"" + text + "\" is no date; write one that exists as 2026-09-30");
    return date;
}

Variant ReadTick(const std::string& text) {
    for (const char* yes : {"1", "-1", "true", "yes"})
        if (SameName(text, yes)) return true;
    for (const char* no : {"0", "false", "no"})
        if (SameName(text, no)) return false;
    throw UsageError("\"" + text + "\" is neither yes nor no; write 1 or 0");
}

struct RowColumn {
    const char* name;
    Variant (*read)(const std::string& text);
};

constexpr std::array kColumns{
    RowColumn{"DetDate", ReadDay},    RowColumn{"DetRef", ReadText},
    RowColumn{"DetDesc", ReadText},   RowColumn{"Conciliated", ReadTick},
    RowColumn{"DetAmnt", ReadAmount}, RowColumn{"ForeignAmnt", ReadAmount},
    RowColumn{"Source", ReadText},    RowColumn{"ExSrcKeyVal", ReadText},
};

/// Where in a record each of the columns is.
using Places = std::array<std::size_t, kColumns.size()>;

std::string ColumnNames() {
    std::string names;
    for (const auto& column : kColumns)
        names += (names.empty() ? "" : ",") + std::string(column.name);
    return names;
}

Places FindColumns(const CsvRecords& header) {
    Places places{};
    const auto& names = header.Values();
    for (std::size_t i = 0; i < kColumns.size(); ++i) {
        const auto is_it = [&](const std::string& name) {
            return SameName(name, kColumns[i].name);
        };
        const auto place = std::ranges::find_if(names, is_it);
        const std::string column = std::string("the column ") + kColumns[i].name;
        if (place == names.end())
            header.Refuse(column + " is missing; the first line must name " + ColumnNames());
        if (std::ranges::count_if(names, is_it) > 1) header.Refuse(column + " is there twice");
        places[i] = static_cast<std::size_t>(place - names.begin());
    }
    return places;
}

Variant ReadValue(const CsvRecords& record, const RowColumn& column, const std::string& text) {
    if (text.empty()) return Variant::Null{};
    try {
        return column.read(text);
    } catch (const UsageError& error) {
        record.Refuse(std::string(column.name) + ": " + error.what());
    }
}

void RequireReadable(const std::istream& input, const std::string& name) {
    if (!input.bad()) return;
    throw UsageError("--rows: " + name + " cannot be read: " + std::strerror(errno));
}

std::shared_ptr<Recordset> ReadRows(std::istream& input, const std::string& name) {
    input.peek();
    RequireReadable(input, name);
    CsvRecords records(input, name);
    if (!records.Next())
        throw UsageError(name + " is empty; its first line must name " + ColumnNames());
    const Places places = FindColumns(records);
    std::vector<drivers::MemoryRecordset::Values> rows;
    while (records.Next()) {
        auto& row = rows.emplace_back();
        for (std::size_t i = 0; i < kColumns.size(); ++i)
            row.push_back(ReadValue(records, kColumns[i], records.Values()[places[i]]));
    }
    RequireReadable(input, name);
    std::vector<std::string> names;
    for (const auto& column : kColumns) names.emplace_back(column.name);
    return std::make_shared<drivers::MemoryRecordset>(std::move(names), rows);
}

}  // namespace

std::shared_ptr<Recordset> ReadReconciliationRows(const std::string& file) {
    if (file == "-") return ReadRows(std::cin, "standard input");
    std::ifstream input(file);
    if (!input.is_open()) input.setstate(std::ios::badbit);
    RequireReadable(input, file);
    return ReadRows(input, file);
}

Outstanding SumOutstanding(Recordset& rows, bool foreign) {
    const Column ticked = rows.GetColumns().At("Conciliated");
    const Column amount = rows.GetColumns().At(reports::AmountColumn(foreign));
    Outstanding sums;
    for (; !rows.AtEnd(); rows.MoveNext()) {
        const Row& row = rows.Current();
        if (row.Truth(ticked)) continue;
        const Currency value = row.Amount(amount);
        (value > Currency() ? sums.deposits : sums.withdrawals) += value.Abs();
    }
    rows.MoveFirst();
    return sums;
}

}  // namespace varnel::cli
