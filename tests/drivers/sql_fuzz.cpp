#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "drivers/sqlite/sql_concatenation.h"
#include "drivers/sqlite/sql_tokens.h"

namespace {

void Require(bool condition, const char* promise) {
    if (condition) return;
    std::fprintf(stderr, "broken: %s\n", promise);
    std::abort();
}

}  // namespace

/// For any bytes: the tokens are the text again, and a text rewritten once needs no more rewriting
/// of `&`.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace varnel::drivers;
    const std::string sql(reinterpret_cast<const char*>(data), size);
    std::string joined;
    for (const auto& token : TokenizeSql(sql)) joined.append(token.blank).append(token.text);
    Require(joined == sql, "tokens give the text again");
    const std::string once = RewriteConcatenation(sql);
    Require(once.size() >= sql.size(), "rewriting only adds");
    Require(RewriteConcatenation(once) == once, "a rewritten text needs no rewriting");
    return 0;
}
