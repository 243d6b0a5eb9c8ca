#include <gtest/gtest.h>

#include "host/banded_report.h"

namespace varnel {
namespace {

TEST(ReportDataTest, AFieldAddedTwiceIsOneField) {
    ReportData data;
    const Column account = data.AddField("Account");
    const Column amount = data.AddField("Amount");
    EXPECT_EQ(data.AddField("ACCOUNT").index, account.index);
    EXPECT_NE(account.index, amount.index);
    EXPECT_EQ(data.FieldNames().Size(), 2u);
}

TEST(ReportDataTest, ANewRunKeepsTheFieldsAndForgetsTheirValues) {
    ReportData data;
    const Column account = data.AddField("Account");
    data.SetField(account, "Cash");
    EXPECT_EQ(data.Fields().Text(account), "Cash");
    data.Show(&data.Fields());
    EXPECT_FALSE(data.EndOfData());

    data.Clear();
    EXPECT_TRUE(data.EndOfData());
    EXPECT_EQ(data.FieldNames().At("account").index, account.index);
    EXPECT_TRUE(data.Fields().IsNull(account));
}

}  // namespace
}  // namespace varnel
