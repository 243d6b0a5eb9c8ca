#include "company/writing/server_writer.h"

#include <charconv>
#include <vector>

#include "company/schema/schema.h"
#include "drivers/odbc/odbc_database.h"
#include "host/error.h"

namespace varnel::company {

namespace {

constexpr std::size_t kMostBytes = 256 * 1024;

/// A name of one of the tables that are there; empty when there is none.
std::string SomeTable(const std::string& connection_string) {
    drivers::OdbcConnections connections;
    const auto query = drivers::NewOdbcCommand(connections);
    query->SetActiveConnection(connection_string);
    query->SetText(
        "SELECT CAST(table_name AS text) FROM information_schema.tables "
        "WHERE table_schema = current_schema() ORDER BY 1");
    const auto rows = query->Execute(Command::kOptionsUnspecified);
    return rows->AtEnd() ? std::string() : std::string(rows->Current().Text(Column{0}));
}

void RequireNoTables(const CompanyAddress& address) {
    const std::string table = SomeTable(address.odbc_connection);
    if (!table.empty())
        throw Error(error_number::kInvalidArgument, "Company",
                    address.text + " holds tables already, such as " + table +
                        "; choose another database or ask to overwrite the company in it");
}

/// A statement whose values are written into it. Rows of an INSERT are left to the writer.
class LiteralStatement final : public WritingStatement {
  public:
    LiteralStatement(ServerWriter& writer, std::string_view sql) : writer_(writer) {
        constexpr std::string_view kValues = "VALUES ";
        const auto values = sql.find(kValues);
        const bool inserts = sql.starts_with("INSERT") && values != std::string_view::npos;
        if (inserts) insert_ = sql.substr(0, values + kValues.size());
        sql.remove_prefix(insert_.size());
        for (auto mark = sql.find('?'); mark != std::string_view::npos; mark = sql.find('?')) {
            before_.emplace_back(sql.substr(0, mark));
            sql.remove_prefix(mark + 1);
        }
        end_ = sql;
    }

    void Bind(int position, std::int64_t value) override {
        char digits[24];
        Start(position).append(digits, std::to_chars(digits, std::end(digits), value).ptr);
    }
    void Bind(int position, Currency value) override { value.AppendText(Start(position), 0); }
    void Bind(int position, Rate value) override { value.AppendText(Start(position), 0); }
    void Bind(int position, Date value) override {
        Start(position) += '\'';
        value.AppendIso(text_);
        text_ += '\'';
    }
    void Bind(int position, std::string_view value) override {
        Start(position) += '\'';
        for (const char c : value) text_.append(c == '\'' ? 2 : 1, c);
        text_ += '\'';
    }
    void BindNull(int position) override { Start(position) += "NULL"; }

    void Run() override {
        text_ += end_;
        if (insert_.empty())
            writer_.Send(text_);
        else
            writer_.AddRow(insert_, text_);
        text_.clear();
    }

  private:
    std::string& Start(int position) {
        return text_ += before_[static_cast<std::size_t>(position - 1)];
    }

    ServerWriter& writer_;
    std::string insert_;
    std::vector<std::string> before_;  // What comes before each value.
    std::string end_;
    std::string text_;
};

}  // namespace

template <class Work>
auto ServerWriter::AtPlace(Work&& work) const {
    try {
        return work();
    } catch (const Error& error) {
        throw Error(error.Number(), error.Source(),
                    "cannot write " + place_ + ": " + error.Description());
    }
}

ServerWriter::ServerWriter(const CompanyAddress& address, const WritingOptions& options)
    : place_(address.text), watch_(options.cancelled), connection_(AtPlace([&] {
          return std::make_unique<drivers::OdbcConnection>(address.odbc_connection,
                                                           drivers::OdbcAccess::kWrite, watch_);
      })) {
    if (!options.overwrite) RequireNoTables(address);
    if (options.overwrite) Execute(kServerRemovalSql);
    Execute(kServerPreludeSql);
    Execute(kSchemaSql);
}

std::unique_ptr<WritingStatement> ServerWriter::Prepare(std::string_view sql) {
    return std::make_unique<LiteralStatement>(*this, sql);
}

void ServerWriter::Execute(const char* sql) { Send(sql); }

std::vector<std::int64_t> ServerWriter::Numbers(const std::string& query) {
    SendAllRows();
    return AtPlace([&] { return connection_->Numbers(query); });
}

void ServerWriter::AddRow(const std::string& insert, std::string_view row) {
    std::string& rows = rows_[insert];
    if (!rows.empty()) rows += ',';
    rows += row;
    if (rows.size() > kMostBytes) SendRows(insert, rows);
}

void ServerWriter::SendRows(const std::string& insert, std::string& rows) {
    if (rows.empty()) return;
    const std::string text = insert + rows;
    rows.clear();
    AtPlace([&] { connection_->Execute(text); });
}

void ServerWriter::SendAllRows() {
    for (auto& [insert, rows] : rows_) SendRows(insert, rows);
}

void ServerWriter::Send(std::string_view sql) {
    SendAllRows();
    AtPlace([&] { connection_->Execute(sql); });
}

void ServerWriter::Finish() {
    Execute(kIndexesSql);
    try {
        connection_->Commit();
    } catch (const Error& error) {
        throw Error(error.Number(), error.Source(),
                    "whether " + place_ +
                        " was written is not known, look into it: " + error.Description());
    }
}

}  // namespace varnel::company
