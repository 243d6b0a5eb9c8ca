#include "cli/names_by_id.h"

#include "cli/errors.h"
#include "framework/query_runner.h"

namespace varnel::cli {

NamesById ReadNames(Application& application, const char* query) {
    constexpr Column kId{0}, kCode{1}, kDescription{2};
    const auto rows = framework::RunQuery(application, query, {});
    NamesById names;
    for (; !rows->AtEnd(); rows->MoveNext()) {
        const Row& row = rows->Current();
        std::string& name = names[row.Integer(kId)];
        row.AppendText(kCode, name);
        if (row.IsNull(kDescription)) continue;
        name += " - ";
        row.AppendText(kDescription, name);
    }
    return names;
}

const std::string& NameOf(std::int32_t id, const NamesById& names, std::string_view thing) {
    const auto found = names.find(id);
    if (found != names.end()) return found->second;
    std::string list;
    for (const auto& [known, name] : names) list += "\n" + std::to_string(known) + "  " + name;
    throw UsageError("there is no " + std::string(thing) + " " + std::to_string(id) +
                     (names.empty() ? "; the company has none" : "; there are:" + list));
}

}  // namespace varnel::cli
