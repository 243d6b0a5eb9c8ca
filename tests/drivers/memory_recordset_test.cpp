#include "drivers/memory_recordset.h"

#include <gtest/gtest.h>

#include "host/error.h"

namespace varnel::drivers {

namespace {

TEST(MemoryRecordset, StandsOnTheFirstRowAndMovesForward) {
    MemoryRecordset rows({"Id", "Name"}, {{1, "one"}, {2, Variant::Null{}}});
    EXPECT_EQ(rows.Current().Text(rows.GetColumns().At("name")), "one");
    rows.MoveNext();
    EXPECT_EQ(rows.Current().Integer({0}), 2);
    EXPECT_TRUE(rows.Current().IsNull({1}));
    rows.MoveNext();
    EXPECT_TRUE(rows.AtEnd());
    rows.MoveFirst();
    EXPECT_EQ(rows.Current().Integer({0}), 1);
}

TEST(MemoryRecordset, HasNoRowAtTheEnd) {
    MemoryRecordset rows({"Id"}, {});
    EXPECT_TRUE(rows.AtEnd());
    EXPECT_THROW(rows.Current(), Error);
    EXPECT_THROW(rows.MoveNext(), Error);
}

TEST(MemoryRecordset, WantsAValueForEachColumn) {
    EXPECT_THROW(MemoryRecordset({"Id", "Name"}, {{1, "one"}, {2}}), Error);
}

}  // namespace

}  // namespace varnel::drivers
