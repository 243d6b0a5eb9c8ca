#include <gtest/gtest.h>

#include "tests/engine/micro_report.h"

using namespace varnel;
using namespace varnel::engine;

namespace {

/// A report that feeds its rows itself, from a list of its own.
class UnboundReport : public MicroReport {
  public:
    explicit UnboundReport(Names values) : MicroReport(MicroLayout(1)), values_(std::move(values)) {
        on_fetch = [this](bool& end_of_data) {
            EXPECT_TRUE(end_of_data);
            if (next_ == values_.size()) return;
            Data().SetField(group_, values_[next_].substr(0, 1));
            Data().SetField(line_, values_[next_]);
            ++next_;
            end_of_data = false;
        };
    }
    void ActiveReport_DataInitialize() override {
        group_ = Data().AddField("g0");
        line_ = Data().AddField("line");
        cleared = Data().Fields().IsNull(group_);
        next_ = 0;
    }
    bool cleared = false;

  private:
    Names values_;
    std::size_t next_ = 0;
    Column group_, line_;
};

}  // namespace

TEST(Unbound, FieldsGroupAndBindAsColumnsDo) {
    UnboundReport report({"A1", "A2", "B1"});
    EXPECT_EQ(BandsOf(report), (Names{"begin", "RH", "PH", "A", "A1", "A2", "end A", "B", "B1",
                                      "end B", "RF", "PF", "end"}));
}

TEST(Unbound, FieldsStayOverRunsAndTheirValuesGo) {
    UnboundReport report({"A1"});
    const Names first = BandsOf(report);
    EXPECT_EQ(BandsOf(report), first);
    EXPECT_TRUE(report.cleared);
    EXPECT_EQ(report.Data().FieldNames().Size(), 2u);
}

TEST(Unbound, AFieldAddedTwiceIsOneField) {
    ReportData data;
    const Column account = data.AddField("Account");
    EXPECT_NE(data.AddField("Amount").index, account.index);
    EXPECT_EQ(data.AddField("ACCOUNT").index, account.index);
    EXPECT_EQ(data.FieldNames().Size(), 2u);
}

TEST(Unbound, AFooterSeesTheFieldsOfItsLastRowBesideTheRowSet) {
    MicroReport report(MicroLayout(1), "g0 line", "A 1|A 2|B 3");
    const Column doubled = report.Data().AddField("doubled");
    report.on_fetch = [&](bool& end_of_data) {
        if (end_of_data) return;
        const std::string line(report.Data().Current().Text({1}));
        report.Data().SetField(doubled, line + line);
    };
    Names seen;
    report.On("f0", [&] { seen.emplace_back(report.Data().CurrentFields().Text(doubled)); });
    BandsOf(report);
    EXPECT_EQ(seen, (Names{"22", "33"}));
}

TEST(Unbound, AFeedMayStopEarlyOrGoOnAfterTheRowSet) {
    MicroReport shorter(MicroLayout(0), "line", "1|2|3");
    shorter.on_fetch = [&](bool& end_of_data) {
        end_of_data = end_of_data || shorter.Data().Current().Text({0}) == "3";
    };
    EXPECT_EQ(BandsOf(shorter), (Names{"begin", "RH", "PH", "1", "2", "RF", "PF", "end"}));

    MicroReport longer(MicroLayout(0), "line", "1");
    int extra = 1;
    longer.on_fetch = [&](bool& end_of_data) {
        if (end_of_data && extra-- > 0) end_of_data = false;
    };
    EXPECT_EQ(BandsOf(longer), (Names{"begin", "RH", "PH", "1", "", "RF", "PF", "end"}));
}
