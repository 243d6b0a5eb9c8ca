#include <gmock/gmock.h>

#include "company/company_address.h"
#include "host/error.h"

namespace varnel::company {
namespace {

std::string ConnectionOf(const std::string& text) {
    return ParseCompanyAddress(text).odbc_connection;
}

TEST(CompanyAddress, AnythingElseIsAFile) {
    for (const char* file : {"shop.db", "C=1.db", "postgresql", "driver.db", "/a/b;c=d"})
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
    EXPECT_EQ(ConnectionOf("dsn=shop"), "dsn=shop");
}

TEST(CompanyAddress, WithAPasswordIsRefusedUnseen) {
    for (const char* text :
         {"postgresql://ann:tulip@db/shop", "postgresql://db/x?password=tulip",
          "Driver={X};pwd=tulip", "DSN=x;PASSWORD={tulip}", "UID=u;PWD=tulip;Driver={X}",
          " Driver ={X};PWD=tulip", "host=db password=tulip", "DSN=x;pqopt={ password = tulip}"}) {
        try {
            ParseCompanyAddress(text);
            ADD_FAILURE() << text;
        } catch (const Error& error) {
            EXPECT_THAT(error.what(), testing::HasSubstr("PGPASSFILE"));
            EXPECT_THAT(error.what(), testing::Not(testing::HasSubstr("tulip")));
        }
    }
}

TEST(CompanyAddress, WithAZeroIsRefused) {
    EXPECT_THROW(ParseCompanyAddress("postgresql://ann@db/shop%00x"), Error);
}

TEST(CompanyAddress, OfAnotherSchemeIsRefusedUnseen) {
    for (const char* text : {"mysql://u:tulip@db/shop", "jdbc:postgresql://u:tulip@db/shop"}) {
        try {
            ParseCompanyAddress(text);
            ADD_FAILURE() << text;
        } catch (const Error& error) {
            EXPECT_THAT(error.what(), testing::HasSubstr("postgresql://user@host/database"));
            EXPECT_THAT(error.what(), testing::Not(testing::HasSubstr("tulip")));
        }
    }
}

}  // namespace
}  // namespace varnel::company
