#include "cli/company_argument.h"

#include "cli/errors.h"
#include "company/company_address.h"
#include "host/error.h"

namespace varnel::cli {

void CheckCompany(std::string_view option, const std::string& company) {
    try {
        company::ParseCompanyAddress(company);
    } catch (const Error& error) {
        throw UsageError(std::string(option) + ": " + error.Description());
    }
}

}  // namespace varnel::cli
