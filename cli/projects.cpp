#include "cli/projects.h"

#include "cli/names_by_id.h"

namespace varnel::cli {

std::string ListProjects(Application& application, std::span<const std::int32_t> ids) {
    const auto names = ReadNames(application, "SELECT InProjId, ProjId, Descr FROM ProjInfo");
    std::string list;
    for (const auto id : ids) {
        NameOf(id, names, "project");
        list += (list.empty() ? "" : ",") + std::to_string(id);
    }
    return list;
}

}  // namespace varnel::cli
