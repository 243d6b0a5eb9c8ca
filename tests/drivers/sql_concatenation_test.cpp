#include "drivers/sqlite/sql_concatenation.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace varnel::drivers {

namespace {

TEST(SqlConcatenation, IsWrittenAsSqliteWantsIt) {
    const struct {
        const char* text;
        const char* rewritten;
    } cases[] = {
        {"(c.Code & ' - ' & c.[My Descr]) AS F",
         "(COALESCE(c.Code,'') || ' - ' || COALESCE(c.[My Descr],'')) AS F"},
        {"c.Code + ' - ' + c.Descr As F", "c.Code || ' - ' || c.Descr As F"},
        {"f(x, y & z)&g()",
         "COALESCE(f(x, COALESCE(y,'') || COALESCE(z,'')),'')||COALESCE(g(),'')"},
        {"a & (b & c)", "COALESCE(a,'') || (COALESCE(b,'') || COALESCE(c,''))"},
        {"CASE WHEN a THEN b END & x", "COALESCE(CASE WHEN a THEN b END,'') || COALESCE(x,'')"},
        {"CASE a & b WHEN 'x' + c THEN 1 END",
         "CASE COALESCE(a,'') || COALESCE(b,'') WHEN 'x' || c THEN 1 END"},
        {"CASE WHEN a = 'x' THEN 1 ELSE 2 END + b", "CASE WHEN a = 'x' THEN 1 ELSE 2 END + b"},
        {"CASE WHEN a THEN 'x' END + b", "CASE WHEN a THEN 'x' END || b"},
        {"a * 2 + 'x' + b / c", "(a * 2) || 'x' || (b / c)"},
        {"a + 1 & b - c", "COALESCE(a + 1,'') || COALESCE(b - c,'')"},
        {"a + 'x' & b", "COALESCE(a || 'x','') || COALESCE(b,'')"},
        {"(a + 'x') + b", "(a || 'x') || b"},
        {"(a & b) + c", "(COALESCE(a,'') || COALESCE(b,'')) || c"},
        {"a || 'x' + b", "a || 'x' || b"},
        {"-a & ~b", "COALESCE(-a,'') || COALESCE(~b,'')"},
        {"a = b & c AND d & e LIKE ? + '%'",
         "a = COALESCE(b,'') || COALESCE(c,'') AND COALESCE(d,'') || COALESCE(e,'') LIKE ? || '%'"},
        {"(SELECT MAX(x) FROM t) & y", "COALESCE((SELECT MAX(x) FROM t),'') || COALESCE(y,'')"},
        {"COUNT(*) & a COLLATE NOCASE, t.*",
         "COALESCE(COUNT(*),'') || COALESCE(a COLLATE NOCASE,''), t.*"},
        {"a -- &\n& /* + */ b", "COALESCE(a,'') -- &\n|| /* + */ COALESCE(b,'')"},
        {"a & b c, d", "COALESCE(a,'') || COALESCE(b,'') c, d"},
        {"a + \"x\" + b", "a + \"x\" + b"},
        {"a - 'x' + b", "a - 'x' + b"},
        {"'x' * a + b", "'x' * a + b"},
        {"f('x') + b", "f('x') + b"},
        {"('x', 'y') + b", "('x', 'y') + b"},
        {"('x' = a) + b", "('x' = a) + b"},
        {"x'00' + b", "x'00' + b"},
    };
    for (const auto& each : cases)
        EXPECT_EQ(RewriteConcatenation(each.text), each.rewritten) << each.text;
}

/// Pieces in which no sign is a concatenation, whatever stands around them.
TEST(SqlConcatenation, AnythingElseComesOutByteForByte) {
    const char* pieces[] = {" ",     "SELECT", "a",       "+ b",      "-",    "*",       "(",
                            ")",     ",",      "CASE",    "WHEN",     "THEN", "END",     "1e+5",
                            "\"&\"", "[+ &]",  "`&`",     "-- & +\n", "?",    "/* & */", "FROM",
                            "IIF(",  "AND",    "COLLATE", ".",        "é",    "|",       "<>"};
    std::mt19937 random(20250331);  // NOLINT: the same texts in every run
    for (int round = 0; round < 2'000; ++round) {
        std::string text;
        for (int i = 0; i < 30; ++i) text.append(pieces[random() % std::size(pieces)]).append(" ");
        ASSERT_EQ(RewriteConcatenation(text), text);
    }
}

TEST(SqlConcatenation, IncompleteTextIsLeftForSqliteToRefuse) {
    for (const char* text : {"a &", "& a", "'x' +", "a & , b", "(a", "a)", "END", "CASE", ""})
        EXPECT_EQ(RewriteConcatenation(text), text);
}

TEST(SqlConcatenation, NestingBeyondAllMeasureIsLeftAlone) {
    const std::string text = std::string(100'000, '(') + "a & b";
    EXPECT_EQ(RewriteConcatenation(text), text);
}

}  // namespace

}  // namespace varnel::drivers
