#include "company/writing/company_writer.h"

#include "company/writing/file_writer.h"
#include "company/writing/server_writer.h"

namespace varnel::company {

std::unique_ptr<CompanyWriter> NewCompany(const CompanyAddress& address,
                                          const WritingOptions& options) {
    if (address.IsServer()) return std::make_unique<ServerWriter>(address, options);
    return std::make_unique<FileWriter>(address.text, options);
}

}  // namespace varnel::company
