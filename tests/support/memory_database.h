#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "drivers/memory_recordset.h"
#include "host/data_access.h"
#include "tests/support/host_calls.h"

namespace varnel::test {

struct RowSet {
    std::vector<std::string> columns;
    std::vector<drivers::MemoryRecordset::Values> rows;
};

/// What was done with one command.
struct RecordedCommand {
    /// In order and with their values: "timeout 0", "connection memory", "text",
    /// "parameter 2025-01-31", "execute -1".
    std::vector<std::string> calls;
    std::string text;
    std::vector<Variant> parameters;
};

/// A database of canned row sets that records every command.
class MemoryDatabase final : public CompanyDatabase {
  public:
    explicit MemoryDatabase(HostCalls& calls) : calls_(calls) {}

    /// The rows for every statement that contains `part`; later answers win over earlier ones, and
    /// an empty part answers all. A statement without an answer raises error 3709 with its text.
    void Answer(std::string part, RowSet rows) {
        answers_.emplace_back(std::move(part), std::move(rows));
    }
    const std::vector<std::shared_ptr<RecordedCommand>>& Commands() const { return commands_; }
    int type = 1;

    std::string ConnectionString() override { return "memory"; }
    int DatabaseType() override { return type; }
    std::shared_ptr<Command> NewCommand() override;
    std::shared_ptr<void> HoldSnapshot() override;
    bool SnapshotIsHeld() const { return !snapshot_.expired(); }
    void BindParameters(Command& command, std::span<const Variant> parameters) override;

    // For its commands.
    std::shared_ptr<Recordset> Rows(const std::string& text);

  private:
    HostCalls& calls_;
    std::weak_ptr<void> snapshot_;
    std::vector<std::pair<std::string, RowSet>> answers_;
    std::vector<std::shared_ptr<RecordedCommand>> commands_;
};

}  // namespace varnel::test
