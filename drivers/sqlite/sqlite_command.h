#pragma once

#include <vector>

#include "drivers/sqlite/sqlite_database.h"

namespace varnel::drivers {

class SqliteCommand final : public Command {
  public:
    explicit SqliteCommand(SqliteConnections& connections) : connections_(connections) {}

    void SetTimeout(int seconds) override;
    void SetActiveConnection(const std::string& connection_string) override;
    void SetText(const std::string& text) override { text_ = text; }
    void AppendParameter(const Variant& value) override { parameters_.push_back(value); }
    std::shared_ptr<Recordset> Execute(int options) override;

  private:
    SqliteConnections& connections_;
    std::shared_ptr<const SqliteConnection> connection_;
    std::string text_;
    std::vector<Variant> parameters_;
    int timeout_ = 0;
};

}  // namespace varnel::drivers
