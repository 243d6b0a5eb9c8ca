#include <sys/resource.h>

#include <csignal>

#include "company/demo/random.h"
#include "host/error.h"
#include "tests/company/demo_database.h"

namespace varnel::company {
namespace {

namespace fs = std::filesystem;

DemoOptions Small(std::uint64_t seed = 1) {
    DemoOptions options;
    options.lines = 2'000;
    options.seed = seed;
    return options;
}

std::string Refusal(const fs::path& file, const DemoOptions& options) {
    try {
        CreateDemoCompany(file, options);
    } catch (const Error& error) {
        return error.Description();
    }
    return "";
}

// Published first values of the generator for the seed 0: the same with every compiler.
TEST(DemoRandom, GivesThePublishedSequence) {
    demo::Random random(0);
    EXPECT_EQ(random.Next(), 0xe220a8397b1dcdafu);
    EXPECT_EQ(random.Next(), 0x6e789e6aa1b965f4u);
    EXPECT_EQ(random.Next(), 0x06c45d188009454fu);
}

TEST(DemoFile, IsTheSameForTheSameSeed) {
    const TemporaryFolder folder;
    CreateDemoCompany(folder / "a.db", Small());
    CreateDemoCompany(folder / "b.db", Small());
    EXPECT_TRUE(ReadAll(folder / "a.db") == ReadAll(folder / "b.db"));
}

TEST(DemoFile, IsNotWrittenOverUnlessAskedTo) {
    const TemporaryFolder folder;
    const auto file = folder / "shop.db";
    std::ofstream(file) << "precious";
    EXPECT_THAT(Refusal(file, Small()), testing::HasSubstr("exists already"));
    EXPECT_EQ(ReadAll(file), "precious");
    DemoOptions options = Small();
    options.overwrite = true;
    EXPECT_EQ(Refusal(file, options), "");
    EXPECT_EQ(ReadAll(file).substr(0, 15), "SQLite format 3");
}

TEST(DemoFile, RefusesTooFewLines) {
    const TemporaryFolder folder;
    DemoOptions options = Small();
    options.lines = 10;
    EXPECT_THAT(Refusal(folder / "shop.db", options), testing::HasSubstr("1000"));
}

TEST(DemoFile, LeavesNothingWhenItIsStopped) {
    const TemporaryFolder folder;
    DemoOptions options = Small();
    std::int64_t most = 0;
    bool half = false;
    options.progress = [&](std::int64_t done, std::int64_t lines) {
        most = done;
        half = done * 2 >= lines;
    };
    options.cancelled = [&] { return half; };
    EXPECT_THAT(Refusal(folder / "shop.db", options), testing::HasSubstr("stopped"));
    EXPECT_GE(most, 1'000);
    EXPECT_TRUE(fs::is_empty(folder.Path()));
}

// A limit on the size of files stands in for a full disk.
TEST(DemoFile, LeavesNothingWhenTheDiskIsFull) {
    const TemporaryFolder folder;
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit small{.rlim_cur = 200'000, .rlim_max = before.rlim_max};
    setrlimit(RLIMIT_FSIZE, &small);
    const std::string refusal = Refusal(folder / "shop.db", Small());
    setrlimit(RLIMIT_FSIZE, &before);
    EXPECT_THAT(refusal, testing::HasSubstr("cannot write"));
    EXPECT_THAT(refusal, testing::HasSubstr("shop.db"));
    EXPECT_TRUE(fs::is_empty(folder.Path()));
}

}  // namespace
}  // namespace varnel::company
