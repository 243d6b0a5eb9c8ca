#include <gtest/gtest.h>

#include "framework/custom_criteria.h"
#include "framework/segment_filter.h"

namespace varnel::framework {
namespace {

struct SegmentCase {
    const char* ids;
    bool also_none;
    const char* clause;
};

class SegmentClauseTest : public testing::TestWithParam<SegmentCase> {};

TEST_P(SegmentClauseTest, TakesTheListedSegmentsLinesWithoutOneOrBoth) {
    const auto& [ids, also_none, clause] = GetParam();
    EXPECT_EQ(SegmentClause("GLDet.ExSegmentId", ids, also_none), clause);
}

INSTANTIATE_TEST_SUITE_P(
    Filters, SegmentClauseTest,
    testing::Values(SegmentCase{"", false, ""},
                    SegmentCase{"3,7", false, "(GLDet.ExSegmentId IN (3,7))"},
                    SegmentCase{"", true, "(GLDet.ExSegmentId IS NULL)"},
                    SegmentCase{"3,7", true,
                                "(GLDet.ExSegmentId IN (3,7) OR GLDet.ExSegmentId IS NULL)"},
                    SegmentCase{" 3 , x ", false, "(GLDet.ExSegmentId IN ( 3 , x ))"}));

TEST(SegmentClauseTest, NamesTheColumnOfTheReport) {
    EXPECT_EQ(SegmentClause("D.Seg", "1", true), "(D.Seg IN (1) OR D.Seg IS NULL)");
}

struct CriteriaCase {
    const char* filter;
    const char* criteria;
    const char* ordering;
    const char* and_clause;
    const char* order_clause;
};

class CustomCriteriaTest : public testing::TestWithParam<CriteriaCase> {};

TEST_P(CustomCriteriaTest, AreSplitAtTheFirstTwoBars) {
    const auto& [filter, criteria, ordering, and_clause, order_clause] = GetParam();
    const auto split = CustomCriteria::Split(filter);
    EXPECT_EQ(split.criteria, criteria);
    EXPECT_EQ(split.ordering, ordering);
    EXPECT_EQ(split.AndClause(), and_clause);
    EXPECT_EQ(split.OrderClause(" ORDER BY S, ", " ORDER BY D"), order_clause);
}

INSTANTIATE_TEST_SUITE_P(
    Filters, CustomCriteriaTest,
    testing::Values(
        CriteriaCase{"", "", "", "", " ORDER BY D"}, CriteriaCase{"|", "", "", "", " ORDER BY D"},
        CriteriaCase{"A = 1", "A = 1", "", " AND (A = 1) ", " ORDER BY D"},
        CriteriaCase{"A = 1|", "A = 1", "", " AND (A = 1) ", " ORDER BY D"},
        CriteriaCase{"|B", "", "B", "", " ORDER BY S, B"},
        CriteriaCase{"A = 1|B DESC", "A = 1", "B DESC", " AND (A = 1) ", " ORDER BY S, B DESC"},
        CriteriaCase{"A|B|C", "A", "B", " AND (A) ", " ORDER BY S, B"},
        CriteriaCase{"||C", "", "", "", " ORDER BY D"},
        CriteriaCase{"A||", "A", "", " AND (A) ", " ORDER BY D"},
        CriteriaCase{" A = 1 | B ", " A = 1 ", " B ", " AND ( A = 1 ) ", " ORDER BY S,  B "},
        CriteriaCase{" |  ", "", "", "", " ORDER BY D"},
        CriteriaCase{" ", "", "", "", " ORDER BY D"}));

}  // namespace
}  // namespace varnel::framework
