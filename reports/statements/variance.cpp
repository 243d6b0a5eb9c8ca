#include "reports/statements/variance.h"

namespace varnel::reports {

// Types 6 to 8 print under 9 and are named all the same, as hosts class them.
VarianceSense SenseOf(std::int32_t account_type) {
    return account_type >= 5 && account_type <= 9 ? VarianceSense::kLessIsBetter
                                                  : VarianceSense::kMoreIsBetter;
}

Variance VarianceOf(Currency current, Currency comparison, VarianceSense sense) {
    const Currency amount =
        sense == VarianceSense::kMoreIsBetter ? current - comparison : comparison - current;
    if (comparison.IsZero()) return {amount, std::nullopt};
    const double ratio =
        static_cast<double>(amount.Scaled()) / static_cast<double>(comparison.Scaled());
    return {amount, (comparison > Currency() ? ratio : -ratio) * 100};
}

}  // namespace varnel::reports
