#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>

#include "company/company_address.h"
#include "host/error.h"

namespace varnel::company {
namespace {

std::string ConnectionOf(const std::string& text) {
    return ParseCompanyAddress(text).odbc_connection;
}

TEST(CompanyAddress, AnythingElseIsAFile) {
    for (const char* file : {"shop.db", "C=1.db", "postgresql", "driver.db", "/a/b;c=d", "a;b",
                             "ann@home.db", "ann@2026:1.db", "/backup:2026/x.db", "./pwd;uid=x"})
        EXPECT_FALSE(ParseCompanyAddress(file).IsServer()) << file;
}

TEST(CompanyAddress, OfAServerBecomesAConnectionString) {
    const std::string driver = "Driver={PostgreSQL Unicode};";
    EXPECT_EQ(ConnectionOf("postgresql://ann@db.example:5433/shop"),
              driver + "UID=ann;Port=5433;Server=db.example;Database=shop;");
    EXPECT_EQ(ConnectionOf("postgres:///my%20shop?host=/run/pg&user=b%40c"),
              driver + "Database={my shop};Server=/run/pg;UID={b@c};");
    EXPECT_EQ(ConnectionOf("postgresql://[::1]:5/x"), driver + "Port=5;Server=::1;Database=x;");
    EXPECT_EQ(ConnectionOf("postgresql://a/x?host=b"), driver + "Database=x;Server=b;");
    EXPECT_EQ(ConnectionOf("postgres://h/x?sslmode=verify-full&user=b@c"),
              driver + "Server=h;Database=x;SSLmode=verify-full;UID={b@c};");
    for (const char* text : {"dsn=shop", "ReadOnly=1;UID=v", "Trusted_Connection = no; Server=::1",
                             "Driver={X};pqopt={passfile=/x}"})
        EXPECT_EQ(ConnectionOf(text), text);
}

void ExpectRefusedUnseen(const char* text, const char* advice) {
    try {
        ParseCompanyAddress(text);
        ADD_FAILURE() << text;
    } catch (const Error& error) {
        EXPECT_THAT(error.what(), testing::HasSubstr(advice)) << text;
        EXPECT_THAT(error.what(), testing::Not(testing::HasSubstr("tulip"))) << text;
    }
}

TEST(CompanyAddress, WithAPasswordIsRefusedUnseen) {
    for (const char* text : {"postgresql://ann:tulip@db/shop",
                             "postgresql://db/x?password=tulip",
                             "postgresql://db/x?user=a:tulip",
                             "postgresql://a%3Atulip@db/x",
                             "postgresql://a:1?tulip@db/x",
                             "postgresql://ann/tulip@db/x",
                             "postgresql://db/x?dbname=password%3Dtulip",
                             "postgresql:u:tulip@db/x",
                             "postgresql:/u:tulip@db/x",
                             "postgresql//u:tulip@db/x",
                             "u:tulip@db/x",
                             "//u:tulip@db/x",
                             "Driver={X};pwd=tulip",
                             "DSN=x;PASSWORD={tulip}",
                             "UID=u;PWD=tulip;Driver={X}",
                             " Driver ={X};PWD=tulip",
                             "host=db password=tulip",
                             "DSN=x;pqopt={ password = tulip}",
                             "SSLmode=disable;Server=h;PWD=tulip",
                             "Description=My shop;Pwd\t= tulip",
                             "PWD=tulip",
                             "DSN=x;Passwd=tulip",
                             "x.db;pass=tulip",
                             "sslpassword=tulip",
                             "DSN=x;UID=a:tulip",
                             "Server=a:tulip@db;Database=x"})
        ExpectRefusedUnseen(text, "PGPASSFILE");
}

TEST(CompanyAddress, WithAZeroIsRefused) {
    EXPECT_THROW(ParseCompanyAddress("postgresql://ann@db/shop%00x"), Error);
}

TEST(CompanyAddress, ThatIsMalformedIsRefusedUnseen) {
    const struct {
        const char *text, *advice;
    } cases[] = {{"mysql://u:tulip@db/shop", "postgresql://user@host/database"},
                 {"jdbc:postgresql://u:tulip@db/shop", "postgresql://user@host/database"},
                 {"postgresql:tulip/shop", "postgresql://user@host/database"},
                 {"postgresql://db:tulip/shop", "no number from 1 to 65535"},
                 {"postgresql://a:1,b:tulip/shop", "no number from 1 to 65535"},
                 {"DSN=x;Port=0", "no number from 1 to 65535"},
                 {"postgresql://db/x?sslmode=tulip", "verify-ca and verify-full"},
                 {"Driver={X};SSLmode=tulip", "verify-ca and verify-full"},
                 {"postgresql://db/x?password:tulip", "sets something"},
                 {"Driver={X};PWD:tulip;UID=v", "Name=value;Name={value}"},
                 {"Driver={X};PWD:tulip;UID={v", "Name=value;Name={value}"},
                 {"Totals=1;tulip.db", "./ before the name of a file"},
                 {"FileDSN=/tulip.dsn", "by DSN="}};
    for (const auto& [text, advice] : cases) ExpectRefusedUnseen(text, advice);
}

TEST(CompanyAddress, ThatIsThePathOfAFileStaysOne) {
    const std::string file = "ann:x@home.db";
    std::ofstream(file) << "books";
    EXPECT_FALSE(ParseCompanyAddress(file).IsServer());
    std::filesystem::remove(file);
}

}  // namespace
}  // namespace varnel::company
