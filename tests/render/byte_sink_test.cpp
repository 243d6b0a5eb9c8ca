#include "render/byte_sink.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <system_error>

#include "tests/render/pdf_tools.h"

namespace varnel::render {
namespace {

std::string ReadFile(const std::string& path) {
    std::ostringstream content;
    content << std::ifstream(path, std::ios::binary).rdbuf();
    return content.str();
}

TEST(FileSink, KeepsTheOrderOfSmallAndLargeWrites) {
    const TemporaryFile file("what was there before, longer than nothing");
    const std::string large(200'000, 'x');
    FileSink sink(file.Path());
    sink.Write("head");
    sink.Write(large);
    for (int i = 0; i < 30'000; ++i) sink.Write("tail");
    sink.Close();
    const std::string content = ReadFile(file.Path());
    ASSERT_EQ(content.size(), 4 + 200'000 + 120'000u);
    EXPECT_EQ(content.substr(0, 8), "headxxxx");
    EXPECT_EQ(content.substr(4 + 200'000 - 1, 9), "xtailtail");
}

TEST(FileSink, ReportsAFullDiskAtTheLatestWhenClosed) {
    FileSink sink("/dev/full");
    sink.Write("a few bytes that stay in the buffer");
    try {
        sink.Close();
        FAIL() << "no error";
    } catch (const std::system_error& error) {
        EXPECT_EQ(error.code(), std::errc::no_space_on_device);
        EXPECT_THAT(error.what(), testing::HasSubstr("/dev/full"));
    }
}

TEST(FileSink, ReportsAFullDiskWhileWriting) {
    FileSink sink("/dev/full");
    EXPECT_THROW(sink.Write(std::string(1'000'000, 'x')), std::system_error);
}

TEST(FileSink, NamesTheFileItCannotCreate) {
    try {
        FileSink sink("/no-such-folder/report.pdf");
        FAIL() << "no error";
    } catch (const std::system_error& error) {
        EXPECT_THAT(error.what(), testing::HasSubstr("/no-such-folder/report.pdf"));
    }
}

TEST(FileSink, RefusesBytesAfterClose) {
    const TemporaryFile file("");
    FileSink sink(file.Path());
    sink.Close();
    sink.Close();
    sink.Write("late");
    EXPECT_THROW(sink.Flush(), std::system_error);
}

TEST(StdoutSink, WritesNothingBeforeFlushAndEverythingAfter) {
    testing::internal::CaptureStdout();
    StdoutSink sink;
    sink.Write("amount\n");
    sink.Write("1.00\n");
    sink.Flush();
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "amount\n1.00\n");
}

}  // namespace
}  // namespace varnel::render
