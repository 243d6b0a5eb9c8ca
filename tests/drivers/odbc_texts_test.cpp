#include <gmock/gmock.h>

#include "drivers/odbc/connection_string.h"
#include "drivers/odbc/one_query.h"
#include "drivers/odbc/utf16.h"
#include "host/error.h"

namespace varnel::drivers {

namespace {

TEST(ConnectionString, KeepsWhatIsInBraces) {
    const auto keywords = ParseConnectionString("Driver={A;B}}C} ; Server = db ;Port=5433;");
    ASSERT_EQ(keywords.size(), 3U);
    EXPECT_EQ(keywords[0].value, "A;B}C");
    EXPECT_EQ(keywords[1].name, "Server");
    EXPECT_EQ(keywords[1].value, "db");
    EXPECT_EQ(JoinConnectionString(keywords), "Driver={A;B}}C};Server=db;Port=5433;");
}

TEST(ConnectionString, IsRefusedWithoutItsValuesBeingShown) {
    for (const char* text : {"Server=db;tulip", "Server={tulip"}) {
        try {
            ParseConnectionString(text);
            ADD_FAILURE() << text;
        } catch (const Error& error) {
            EXPECT_THAT(error.what(), testing::Not(testing::HasSubstr("tulip")));
        }
    }
}

TEST(ConnectionString, HasTheSettingsThatTheDriversRestOnWhateverItSays) {
    EXPECT_EQ(WithOwnSettings("DSN=shop;boolsaschar=1;UseDeclareFetch=1;keepalivetime=5"),
              "DSN=shop;keepalivetime=5;UseDeclareFetch=0;BoolsAsChar=0;UseServerSidePrepare=1;"
              "KeepaliveInterval=10;");
}

TEST(OneQuery, IsSentFromItsFirstWordToItsLast) {
    const auto query = FindQuery("/* a ? */ SELECT '?', ? FROM T -- why?\n WHERE x = ? ; -- end");
    EXPECT_EQ(query.text, "SELECT '?', ? FROM T -- why?\n WHERE x = ?");
    EXPECT_EQ(query.parameters, 2U);
}

TEST(Utf16, TheBeginningOfATextIsWholeCharacters) {
    EXPECT_EQ(Beginning("aé€", 6), "aé€");
    EXPECT_EQ(Beginning("aé€", 5), "aé");
    EXPECT_EQ(Beginning("aé€", 2), "a");
}

TEST(Utf16, TurnsTextsThereAndBack) {
    const std::string text = "aé€😀";
    EXPECT_EQ(ToUtf16(text), (WideText{'a', 0xE9, 0x20AC, 0xD83D, 0xDE00, 0}));
    EXPECT_EQ(ToUtf8(ToUtf16(text).data()), text);
    EXPECT_EQ(ToUtf16("\xC3(\x80"), (WideText{0xFFFD, '(', 0xFFFD, 0}));
    const WideText half{0xD83D, 'x', 0xDE00, 0};
    EXPECT_EQ(ToUtf8(half.data()), "\uFFFDx\uFFFD");
}

}  // namespace

}  // namespace varnel::drivers
