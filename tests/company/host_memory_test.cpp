// The host that other tests lean on.

#include <array>

#include "tests/company/host_small_company.h"
#include "tests/support/memory_host.h"

namespace varnel::test {
namespace {

using testing::ElementsAre;

std::shared_ptr<Recordset> RunQuery(MemoryHost& host) {
    const auto command = host.database.NewCommand();
    command->SetTimeout(0);
    command->SetActiveConnection(host.database.ConnectionString());
    command->SetText("SELECT SeqNo FROM GLDet WHERE DetDate > ?");
    const std::array<Variant, 1> parameters{company::Day("2025-01-31")};
    host.database.BindParameters(*command, parameters);
    return command->Execute(Command::kOptionsUnspecified);
}

TEST(MemoryHost, RecordsWhatIsDoneWithACommandInOrder) {
    MemoryHost host;
    host.database.Answer("", {{"SeqNo"}, {{4}}});
    RunQuery(host);
    const auto& command = *host.database.Commands().at(0);
    EXPECT_THAT(command.calls, ElementsAre("timeout 0", "connection memory", "text",
                                           "parameter 2025-01-31", "execute -1"));
    EXPECT_EQ(command.text, "SELECT SeqNo FROM GLDet WHERE DetDate > ?");
    EXPECT_TRUE(command.parameters.at(0).Holds<Date>());
}

TEST(MemoryHost, AnswersAStatementByWhatItContains) {
    MemoryHost host;
    host.database.Answer("", {{"Other"}, {}});
    host.database.Answer("FROM GLDet", {{"SeqNo"}, {{4}, {5}}});
    const auto rows = RunQuery(host);
    rows->MoveNext();
    EXPECT_EQ(rows->Current().Integer(rows->GetColumns().At("SeqNo")), 5);
}

TEST(MemoryHost, NamesAStatementWithoutAnAnswer) {
    MemoryHost host;
    EXPECT_THAT(company::ErrorOf([&] { RunQuery(host); }), testing::HasSubstr("FROM GLDet"));
}

TEST(MemoryHost, FailsAtEveryCallInTurn) {
    MemoryHost counted;
    counted.database.Answer("", {{"SeqNo"}, {}});
    RunQuery(counted);
    ASSERT_EQ(counted.calls.Count(), 7);
    for (int k = 1; k <= counted.calls.Count(); ++k) {
        MemoryHost host;
        host.database.Answer("", {{"SeqNo"}, {}});
        host.calls.FailAt(k);
        const auto name = counted.calls.Names()[static_cast<std::size_t>(k - 1)];
        EXPECT_THAT(company::ErrorOf([&] { RunQuery(host); }), testing::HasSubstr(name));
        EXPECT_EQ(host.calls.Count(), k) << "nothing is asked after the failure";
    }
}

}  // namespace
}  // namespace varnel::test
