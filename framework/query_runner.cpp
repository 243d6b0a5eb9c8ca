#include "framework/query_runner.h"

namespace varnel::framework {

QueryRunner::QueryRunner(Application& application)
    : database_(application.CurrentContext().Database()), command_(database_.NewCommand()) {
    command_->SetTimeout(0);
}

std::shared_ptr<Recordset> QueryRunner::Run(const std::string& text,
                                            std::span<const Variant> parameters) {
    command_->SetActiveConnection(database_.ConnectionString());
    command_->SetText(text);
    database_.BindParameters(*command_, parameters);
    return command_->Execute(Command::kOptionsUnspecified);
}

bool ReadSwitch(Application& application, std::string_view setting) {
    auto& company = application.CurrentContext().CurrentCompany();
    return Variant(company.GetSetting(setting, Variant(false).ToText(), nullptr, -1)).ToBool();
}

}  // namespace varnel::framework
