#include "company/services/settings.h"

#include "company/services/query.h"
#include "host/error.h"

namespace varnel::company {

namespace {

/// Reads the text as a value of the type that `convert` gives.
template <class Convert>
auto Converted(std::string_view name, const std::string& text, Convert convert) {
    try {
        return convert(Variant(text));
    } catch (const Error& error) {
        throw Error(error.Number(), "Settings",
                    "The company's setting " + std::string(name) + ": " + error.Description());
    }
}

}  // namespace

const Settings::Values& Settings::All() {
    if (values_) return *values_;
    Values values;
    const auto rows = Query(database_, "SELECT SettingName, SettingValue FROM CompanySetting");
    for (; !rows->AtEnd(); rows->MoveNext()) {
        const Row& row = rows->Current();
        if (row.IsNull(Column{1})) continue;
        std::string value;
        row.AppendText(Column{1}, value);
        values.emplace_back(row.Text(Column{0}), std::move(value));
    }
    return values_.emplace(std::move(values));
}

std::optional<std::string> Settings::Find(std::string_view name) {
    for (const auto& [known, value] : All())
        if (SameName(known, name)) return value;
    return std::nullopt;
}

std::optional<bool> Settings::FindTruth(std::string_view name) {
    const auto text = Find(name);
    if (!text) return std::nullopt;
    return Converted(name, *text, [](const Variant& value) { return value.ToBool(); });
}

std::optional<Date> Settings::FindDate(std::string_view name) {
    const auto text = Find(name);
    if (!text || text->empty()) return std::nullopt;
    return Converted(name, *text, [](const Variant& value) { return value.ToDate(); });
}

std::int32_t Settings::Id(std::string_view name) {
    const auto text = Find(name);
    if (!text)
        throw Error(
            error_number::kInvalidArgument, "Settings",
            "The company has no setting " + std::string(name) + "; add it to CompanySetting");
    return Converted(name, *text, [](const Variant& value) { return value.ToInteger32(); });
}

}  // namespace varnel::company
