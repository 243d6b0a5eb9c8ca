#include "company/filter/filter_words.h"
#include "tests/company/host_small_company.h"

namespace varnel::company {
namespace {

TEST(FilterWords, PutCaptionsInPlaceOfColumns) {
    const struct {
        const char *criteria, *words;
    } cases[] = {
        {"", ""},
        {"GLAcct.GLAcctId LIKE '4%'", "Account LIKE '4%'"},
        {"(GLDet.DetDate >= '2025-01-01' AND DetAmnt>100)",
         "(Date >= '2025-01-01' AND Amount>100)"},
        {"ProjInfo.Descr = 'GLAcctId'", "Project description = 'GLAcctId'"},
        {"\"ProjInfo\".\"ProjId\" IN ('P7')", "Project IN ('P7')"},
        {"Name(Other.Column) <> 0", "Name(Other.Column) <> 0"},
    };
    for (const auto& [criteria, words] : cases)
        EXPECT_EQ(DescribeCriteria(criteria, Language::kEnglish), words);
    EXPECT_EQ(DescribeCriteria("DetAmnt < 0", Language::kFrench), "Montant < 0");
}

TEST(FilterWords, PutAnOrderingInWords) {
    EXPECT_EQ(DescribeOrder("GLAcct.GLAcctId,DetDate  DESC , SeqNo asc", Language::kEnglish),
              "Account, Date descending, Entry");
    EXPECT_EQ(DescribeOrder("DetDate desc", Language::kFrench), "Date décroissant");
    EXPECT_EQ(DescribeOrder("COALESCE(DetRef, ''), Source", Language::kEnglish),
              "COALESCE(Reference, ''), Source");
    EXPECT_EQ(DescribeOrder("", Language::kEnglish), "");
}

class FilterToolOfACompany : public testing::Test {
  protected:
    CompanyFile file_{kSmallCompany};
    std::shared_ptr<CompanyHost> host_ = OpenCompany(file_.Path());
    std::shared_ptr<CompanyFilterTool> tool_ = host_->NewFilterTool();
};

TEST_F(FilterToolOfACompany, ResolvesAccountsByTheirOwnColumnsAndByTheirLines) {
    EXPECT_EQ(tool_->ResolveAccounts("GLAcctId LIKE '10%'"), "10,11");
    EXPECT_EQ(tool_->ResolveAccounts("GLAcct.AcctType = 1 OR GLAcct.AcctType = 2"),
              "10,11,12,20,21");
    EXPECT_EQ(tool_->ResolveAccounts("GLDet.DetDate = '2025-03-31'"), "11,20");
    EXPECT_EQ(tool_->ResolveAccounts("ProjInfo.ProjId = 'P8'"), "10,50");
    EXPECT_EQ(tool_->ResolveAccounts("WorldCurrency.CurrencyCode = 'USD'"), "11,12,21");
    EXPECT_EQ(tool_->ResolveAccounts("GLAcctId = 'none'"), "-1");
    EXPECT_EQ(tool_->ResolveAccounts(" "), "10,11,12,20,21,30,40,50,51");
}

TEST_F(FilterToolOfACompany, KeepsWhatItIsGiven) {
    EXPECT_TRUE(tool_->SelectedDocuments().empty());
    tool_->SelectDocuments({"12", "15"});
    tool_->SetTables("GLAcct, GLDet ,ProjInfo");
    EXPECT_THAT(tool_->SelectedDocuments(), testing::ElementsAre("12", "15"));
    EXPECT_THAT(tool_->Tables(), testing::ElementsAre("GLAcct", "GLDet", "ProjInfo"));
}

}  // namespace
}  // namespace varnel::company
