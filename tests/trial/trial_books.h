#pragma once

#include "tests/support/books.h"

namespace varnel::test {

Books MakeBooks(company::demo::Random& random);

}  // namespace varnel::test
