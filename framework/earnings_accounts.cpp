#include "framework/earnings_accounts.h"

namespace varnel::framework {

EarningsAccounts ReadEarningsAccounts(Company& company) {
    return {.retained = company.GetGLAccountParam("GLRtainEarn", kCompanySection),
            .current = company.GetGLAccountParam("GLCurntEarn", kCompanySection)};
}

}  // namespace varnel::framework
