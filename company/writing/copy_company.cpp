#include "company/writing/copy_company.h"

#include <unicode/ustring.h>

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string_view>

#include "company/company_address.h"
#include "company/open_database.h"
#include "company/required_tables.h"
#include "company/schema/schema_tables.h"
#include "company/services/query.h"
#include "company/writing/company_writer.h"
#include "company/writing/control_figures.h"
#include "host/error.h"

namespace varnel::company {

namespace {

constexpr std::int64_t kRowsBetweenLooks = 512;

void RequireTwoPlaces(const CompanyAddress& from, const CompanyAddress& to) {
    std::error_code ignored;
    const bool same_file = !from.IsServer() && !to.IsServer() &&
                           std::filesystem::equivalent(from.text, to.text, ignored);
    if (same_file || from.text == to.text ||
        (from.IsServer() && from.odbc_connection == to.odbc_connection))
        throw Error(error_number::kInvalidArgument, "Company",
                    to.text + " is the company that is to be copied; choose another place");
}

enum class TextRule { kAnyBytes, kUtf8 };

std::string_view CheckedText(std::string_view text, TextRule rule) {
    if (rule == TextRule::kAnyBytes) return text;
    UErrorCode status = U_ZERO_ERROR;
    u_strFromUTF8(nullptr, 0, nullptr, text.data(), static_cast<std::int32_t>(text.size()),
                  &status);
    if (status == U_INVALID_CHAR_FOUND)
        throw Error(error_number::kInvalidArgument, "Company",
                    "the text is not UTF-8, and a server takes nothing else; correct it first");
    if (text.find('\0') != std::string_view::npos)
        throw Error(error_number::kInvalidArgument, "Company",
                    "the text holds a zero character, which a server cannot; correct it first");
    return text;
}

/// Puts one cell of a row into the same column of an insert.
void CopyCell(const Row& row, std::size_t index, SchemaType type, TextRule texts,
              WritingStatement& insert) {
    const Column column{static_cast<std::uint32_t>(index)};
    const int position = static_cast<int>(index) + 1;
    if (row.IsNull(column)) return insert.BindNull(position);
    switch (type) {
        case SchemaType::kInteger:
            return insert.Bind(position, row.Integer64(column));
        case SchemaType::kAmount:
            return insert.Bind(position, row.Amount(column));
        case SchemaType::kRate:
            return insert.Bind(position, row.ExchangeRate(column));
        case SchemaType::kDate:
            return insert.Bind(position, row.Day(column));
        case SchemaType::kText:
            return insert.Bind(position, CheckedText(row.Text(column), texts));
    }
}

/// One table on its way from a database to the one that is being made.
class TableCopy {
  public:
    TableCopy(CompanyDatabase& from, CompanyWriter& to, const SchemaTable& table, TextRule texts,
              const CopyOptions& options)
        : from_(from), to_(to), table_(table), texts_(texts), options_(options) {}

    CopiedTable Run() {
        const auto rows = Query(from_, "SELECT " + table_.ColumnList() + " FROM " + table_.name +
                                           " ORDER BY " + table_.columns.front().name);
        const auto insert = to_.Prepare(InsertText());
        std::int64_t copied = 0;
        for (; !rows->AtEnd(); rows->MoveNext()) {
            CopyRow(rows->Current(), *insert);
            if (++copied % kRowsBetweenLooks == 0) Look(copied);
        }
        Look(copied);
        return Compare();
    }

  private:
    std::string InsertText() const {
        std::string marks;
        for (std::size_t i = 0; i < table_.columns.size(); ++i) marks += i == 0 ? "?" : ", ?";
        return "INSERT INTO " + table_.name + " (" + table_.ColumnList() + ") VALUES (" + marks +
               ")";
    }

    void CopyRow(const Row& row, WritingStatement& insert) const {
        for (std::size_t i = 0; i < table_.columns.size(); ++i) {
            try {
                CopyCell(row, i, table_.columns[i].type, texts_, insert);
            } catch (const Error& error) {
                FailAt(row, i, error);
            }
        }
        insert.Run();
    }

    [[noreturn]] void FailAt(const Row& row, std::size_t index, const Error& error) const {
        std::string key;
        row.AppendText(Column{0}, key);
        throw Error(error.Number(), error.Source(),
                    "cannot copy " + table_.columns[index].name + " of the row of " + table_.name +
                        " whose " + table_.columns.front().name + " is " + key + ": " +
                        error.Description());
    }

    void Look(std::int64_t copied) const {
        if (options_.progress) options_.progress(table_.name, copied);
        if (options_.cancelled && options_.cancelled())
            throw Error(error_number::kOther, "Company", "stopped before the copy was complete");
    }

    CopiedTable Compare() const {
        const std::string query = ControlQuery(table_);
        const auto there = to_.Numbers(query);
        const auto answer = Query(from_, query);
        const auto figures = ControlFigures(table_);
        CopiedTable copied{table_.name, 0, {}};
        for (std::size_t i = 0; i < figures.size(); ++i) {
            const auto here = answer->Current().Integer64(Column{static_cast<std::uint32_t>(i)});
            if (here != there.at(i)) FailToMatch(figures[i], here, there[i]);
            Note(figures[i], here, copied);
        }
        return copied;
    }

    [[noreturn]] void FailToMatch(const ControlFigure& figure, std::int64_t here,
                                  std::int64_t there) const {
        const bool rows = figure.kind == ControlFigure::Kind::kRows;
        const auto& what = rows ? std::string("rows") : table_.columns[figure.column].name;
        throw Error(error_number::kDatabase, "Company",
                    "the copy of " + table_.name + " is not what the company holds (" + what +
                        ": a figure of " + std::to_string(there) + " for " + std::to_string(here) +
                        "); look for a value that cannot be held there as it is");
    }

    void Note(const ControlFigure& figure, std::int64_t value, CopiedTable& copied) const {
        using Kind = ControlFigure::Kind;
        const auto amount = Currency::FromScaled(value);
        if (figure.kind == Kind::kRows) copied.rows = value;
        if (figure.kind == Kind::kDebits)
            copied.amounts.push_back({table_.columns[figure.column].name, amount, {}});
        if (figure.kind == Kind::kCredits) copied.amounts.back().credits = amount;
    }

    CompanyDatabase& from_;
    CompanyWriter& to_;
    const SchemaTable& table_;
    TextRule texts_;
    const CopyOptions& options_;
};

}  // namespace

std::vector<CopiedTable> CopyCompany(const std::string& from, const std::string& to,
                                     const CopyOptions& options) {
    const auto source = ParseCompanyAddress(from);
    const auto target = ParseCompanyAddress(to);
    RequireTwoPlaces(source, target);
    const auto database = OpenDatabase(source, {}, options.cancelled);
    const auto snapshot = database->HoldSnapshot();
    RequireCompanyTables(*database, from);
    const auto writer = NewCompany(target, options);
    const auto texts = target.IsServer() ? TextRule::kUtf8 : TextRule::kAnyBytes;
    std::vector<CopiedTable> tables;
    for (const auto& table : SchemaTables())
        tables.push_back(TableCopy(*database, *writer, table, texts, options).Run());
    writer->Finish();
    return tables;
}

}  // namespace varnel::company
