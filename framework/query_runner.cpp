#include "framework/query_runner.h"

#include "host/error.h"

namespace varnel::framework {

std::shared_ptr<Recordset> RunQuery(Application& application, const std::string& text,
                                    std::span<const Variant> parameters) {
    return varnel::RunQuery(application.CurrentContext().Database(), text, parameters);
}

bool ReadSwitch(Application& application, std::string_view setting) {
    auto& company = application.CurrentContext().CurrentCompany();
    const std::string value = company.GetSetting(setting, Variant(false).ToText(), nullptr, -1);
    try {
        return Variant(value).ToBool();
    } catch (const Error& error) {
        throw Error(error.Number(), "Settings",
                    "The company's setting " + std::string(setting) + " is \"" + value +
                        "\": set it to True or False");
    }
}

}  // namespace varnel::framework
