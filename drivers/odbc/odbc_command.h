#pragma once

#include "drivers/odbc/odbc_database.h"
#include "drivers/odbc/odbc_result.h"

namespace varnel::drivers {

class OdbcCommand final : public Command {
  public:
    explicit OdbcCommand(std::shared_ptr<OdbcPool> pool) { query_.pool = std::move(pool); }

    void SetTimeout(int seconds) override;
    void SetActiveConnection(const std::string& connection_string) override {
        query_.connection_string = connection_string;
    }
    void SetText(const std::string& text) override { query_.text = text; }
    void AppendParameter(const Variant& value) override { query_.parameters.push_back(value); }
    std::shared_ptr<Recordset> Execute(int options) override;

  private:
    OdbcQuery query_;
};

}  // namespace varnel::drivers
