#include "drivers/sql_tokens.h"

#include <gmock/gmock.h>

#include <string>

namespace varnel::drivers {

namespace {

using testing::ElementsAre;

std::vector<std::string> Texts(std::string_view sql) {
    std::vector<std::string> texts;
    for (const auto& token : TokenizeSql(sql))
        if (token.kind != SqlTokenKind::kEndOfText) texts.emplace_back(token.text);
    return texts;
}

TEST(SqlTokens, QuotedPiecesAreWhole) {
    EXPECT_THAT(Texts(R"('it''s' "a ""b" [c'd] `e``f`)"),
                ElementsAre("'it''s'", R"("a ""b")", "[c'd]", "`e``f`"));
    EXPECT_THAT(Texts("x'00' X'ff' xx 'a'"), ElementsAre("x'00'", "X'ff'", "xx", "'a'"));
}

TEST(SqlTokens, CommentsAreBlank) {
    EXPECT_THAT(Texts("a -- 'b\n/* \" */c/**/d"), ElementsAre("a", "c", "d"));
    EXPECT_THAT(Texts("a - - b / * c"), ElementsAre("a", "-", "-", "b", "/", "*", "c"));
    EXPECT_THAT(Texts("/*/ a */ b"), ElementsAre("b"));
}

TEST(SqlTokens, ASignInAnExponentBelongsToTheNumber) {
    EXPECT_THAT(Texts("1e+5+1.5E-3-.5"), ElementsAre("1e+5", "+", "1.5E-3", "-", ".5"));
    EXPECT_THAT(Texts("0x1e+5"), ElementsAre("0x1e", "+", "5"));
    EXPECT_THAT(Texts("e+5"), ElementsAre("e", "+", "5"));
}

TEST(SqlTokens, ParametersAndLongOperatorsAreWhole) {
    EXPECT_THAT(Texts("?1||:n<>@m->>'x'"), ElementsAre("?1", "||", ":n", "<>", "@m", "->>", "'x'"));
}

TEST(SqlTokens, WhatHasNoEndGoesOnToTheEnd) {
    EXPECT_THAT(Texts("a 'b''"), ElementsAre("a", "'b''"));
    EXPECT_THAT(Texts("a [b"), ElementsAre("a", "[b"));
    EXPECT_THAT(Texts("a /* b"), ElementsAre("a"));
}

}  // namespace

}  // namespace varnel::drivers
