#pragma once

#include "tests/trial/trial_figures.h"

namespace varnel::test {

/// What the reports should print of these books, added up line by line in plain integers.
Summary ExpectedSummary(const Books& books, const Question& question);
Detail ExpectedDetail(const Books& books, const Question& question);
Gifi ExpectedGifi(const Books& books, const Question& question);

}  // namespace varnel::test
