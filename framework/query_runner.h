#pragma once

#include <memory>
#include <span>
#include <string>

#include "host/application.h"

namespace varnel::framework {

/// One query of a report: a new command without time limit, then connection, text, parameters in
/// the order of the "?" marks, execution. Failures come out as the driver raised them.
class QueryRunner {
  public:
    explicit QueryRunner(Application& application);
    std::shared_ptr<Recordset> Run(const std::string& text, std::span<const Variant> parameters);

  private:
    CompanyDatabase& database_;
    std::shared_ptr<Command> command_;
};

/// A yes-or-no setting of the company; off when it is not set.
bool ReadSwitch(Application& application, std::string_view setting);

}  // namespace varnel::framework
