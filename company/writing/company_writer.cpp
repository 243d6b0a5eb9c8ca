#include "company/writing/company_writer.h"

#include <utility>

#include "company/writing/file_writer.h"
#include "company/writing/server_writer.h"

namespace varnel::company {

std::unique_ptr<CompanyWriter> NewCompany(const CompanyAddress& address, bool overwrite,
                                          UnfinishedFileListener listener) {
    if (address.IsServer()) return std::make_unique<ServerWriter>(address, overwrite);
    return std::make_unique<FileWriter>(address.text, overwrite, std::move(listener));
}

}  // namespace varnel::company
