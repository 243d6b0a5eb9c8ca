#include "cli/company_argument.h"

#include <filesystem>

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

void CheckNewCompany(std::string_view option, const std::string& company, bool overwrite) {
    CheckCompany(option, company);
    if (company == "-")
        throw UsageError(
            std::string(option) +
            ": a company goes to a file, not to standard output; name one, as shop.db");
    std::error_code ignored;
    if (!overwrite && std::filesystem::exists(company, ignored))
        throw Failure(company +
                      " exists already: choose another name, or add --force to replace it");
}

}  // namespace varnel::cli
