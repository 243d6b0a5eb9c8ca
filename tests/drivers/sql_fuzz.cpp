#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "drivers/sql_tokens.h"
#include "drivers/sqlite/sql_concatenation.h"

namespace {

void Require(bool condition, const char* promise) {
    if (condition) return;
    std::fprintf(stderr, "broken: %s\n", promise);
    std::abort();
}

}  // namespace

/// For any bytes: the tokens are the text again, and rewriting keeps all of them in their order,
/// but for the signs that it may replace.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace varnel::drivers;
    const std::string sql(reinterpret_cast<const char*>(data), size);
    const std::string rewritten = RewriteConcatenation(sql);
    std::string joined;
    std::size_t position = 0;
    for (const auto& token : TokenizeSql(sql)) {
        joined.append(token.blank).append(token.text);
        for (const auto piece : {token.blank, token.text}) {
            if (piece == "&" || piece == "+") continue;
            position = rewritten.find(piece, position);
            Require(position != std::string::npos, "rewriting keeps every token");
            position += piece.size();
        }
    }
    Require(joined == sql, "tokens give the text again");
    return 0;
}
