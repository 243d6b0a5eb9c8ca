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

const SegmentCase kSegments[] = {
    {"", false, ""},
    {"3,7", false, "(GLDet.ExSegmentId IN (3,7))"},
    {"", true, "(GLDet.ExSegmentId IS NULL)"},
    {"3,7", true, "(GLDet.ExSegmentId IN (3,7) OR GLDet.ExSegmentId IS NULL)"},
    {" 3 , x ", false, "(GLDet.ExSegmentId IN ( 3 , x ))"}};

TEST(SegmentClauseTest, TakesTheListedSegmentsLinesWithoutOneOrBoth) {
    for (const auto& [ids, also_none, clause] : kSegments)
        EXPECT_EQ(SegmentClause("GLDet.ExSegmentId", ids, also_none), clause);
}

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

const CriteriaCase kFilters[] = {
    {"", "", "", "", " ORDER BY D"},
    {"|", "", "", "", " ORDER BY D"},
    {"A = 1", "A = 1", "", " AND (A = 1) ", " ORDER BY D"},
    {"A = 1|", "A = 1", "", " AND (A = 1) ", " ORDER BY D"},
    {"|B", "", "B", "", " ORDER BY S, B"},
    {"A = 1|B DESC", "A = 1", "B DESC", " AND (A = 1) ", " ORDER BY S, B DESC"},
    {"A|B|C", "A", "B", " AND (A) ", " ORDER BY S, B"},
    {"||C", "", "", "", " ORDER BY D"},
    {"A||", "A", "", " AND (A) ", " ORDER BY D"},
    {" A = 1 | B ", " A = 1 ", " B ", " AND ( A = 1 ) ", " ORDER BY S,  B "},
    {" |  ", "", "", "", " ORDER BY D"},
    {" ", "", "", "", " ORDER BY D"}};

TEST(CustomCriteriaTest, AreSplitAtTheFirstTwoBars) {
    for (const auto& [filter, criteria, ordering, and_clause, order_clause] : kFilters) {
        SCOPED_TRACE(filter);
        const auto split = CustomCriteria::Split(filter);
        EXPECT_EQ(split.criteria, criteria);
        EXPECT_EQ(split.ordering, ordering);
        EXPECT_EQ(split.AndClause(), and_clause);
        EXPECT_EQ(split.OrderClause(" ORDER BY S, ", " ORDER BY D"), order_clause);
    }
}

}  // namespace
}  // namespace varnel::framework
