#include "tests/support/memory_database.h"

#include <algorithm>

namespace varnel::test {

namespace {

class MemoryCommand final : public Command {
  public:
    MemoryCommand(MemoryDatabase& database, HostCalls& calls,
                  std::shared_ptr<RecordedCommand> record)
        : database_(database), calls_(calls), record_(std::move(record)) {}

    void SetTimeout(int seconds) override {
        record_->calls.push_back("timeout " + std::to_string(seconds));
        calls_.Note("Command.Timeout");
    }
    void SetActiveConnection(const std::string& connection_string) override {
        record_->calls.push_back("connection " + connection_string);
        calls_.Note("Command.ActiveConnection");
    }
    void SetText(const std::string& text) override {
        record_->calls.emplace_back("text");
        record_->text = text;
        calls_.Note("Command.Text");
    }
    void AppendParameter(const Variant& value) override {
        record_->calls.push_back("parameter " + value.ToText());
        record_->parameters.push_back(value);
        calls_.Note("Command.Parameter");
    }
    std::shared_ptr<Recordset> Execute(int options) override {
        record_->calls.push_back("execute " + std::to_string(options));
        calls_.Note("Command.Execute");
        return database_.Rows(record_->text);
    }

  private:
    MemoryDatabase& database_;
    HostCalls& calls_;
    std::shared_ptr<RecordedCommand> record_;
};

class CountedRows final : public Recordset {
  public:
    CountedRows(const RowSet& rows, HostCalls& calls)
        : rows_(rows.columns, rows.rows), calls_(calls) {}

    const Columns& GetColumns() const override { return rows_.GetColumns(); }
    bool AtEnd() const override { return rows_.AtEnd(); }
    const Row& Current() const override { return rows_.Current(); }
    void MoveNext() override {
        calls_.Note("Recordset.MoveNext");
        rows_.MoveNext();
    }
    void MoveFirst() override {
        calls_.Note("Recordset.MoveFirst");
        rows_.MoveFirst();
    }

  private:
    drivers::MemoryRecordset rows_;
    HostCalls& calls_;
};

}  // namespace

std::shared_ptr<void> MemoryDatabase::HoldSnapshot() {
    const std::shared_ptr<void> held = std::make_shared<int>();
    snapshot_ = held;
    return held;
}

std::shared_ptr<Command> MemoryDatabase::NewCommand() {
    calls_.Note("NewCommand");
    commands_.push_back(std::make_shared<RecordedCommand>());
    return std::make_shared<MemoryCommand>(*this, calls_, commands_.back());
}

void MemoryDatabase::BindParameters(Command& command, std::span<const Variant> parameters) {
    calls_.Note("BindParameters");
    for (const auto& parameter : parameters) command.AppendParameter(parameter);
}

std::shared_ptr<Recordset> MemoryDatabase::Rows(const std::string& text) {
    const auto fits = [&text](const auto& answer) {
        return text.find(answer.first) != std::string::npos;
    };
    const auto found = std::find_if(answers_.rbegin(), answers_.rend(), fits);
    if (found == answers_.rend())
        throw Error(error_number::kDatabase, "MemoryDatabase", "No rows were given for: " + text);
    return std::make_shared<CountedRows>(found->second, calls_);
}

}  // namespace varnel::test
