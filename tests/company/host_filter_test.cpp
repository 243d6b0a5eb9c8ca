#include "company/filter/filter_fault.h"
#include "company/filter/filter_words.h"
#include "tests/company/host_small_company.h"

namespace varnel::company {
namespace {

TEST(FilterWords, PutCaptionsInPlaceOfColumns) {
    const struct {
        const char *criteria, *words;
    } cases[] = {
        {"", ""},
        {"GLAcct.GLAcctId LIKE '4%'", "Account like '4%'"},
        {"(GLDet.DetDate >= '2025-01-01' AND DetAmnt>100)",
         "(Date >= '2025-01-01' and Amount>100)"},
        {"ProjInfo.Descr = 'GLAcctId'", "Project description = 'GLAcctId'"},
        {"\"ProjInfo\".\"ProjId\" IN ('P7')", "Project in ('P7')"},
        {"Name(Other.Column) <> 0", "Name(Other.Column) <> 0"},
    };
    for (const auto& [criteria, words] : cases)
        EXPECT_EQ(DescribeCriteria(criteria, Language::kEnglish), words);
    EXPECT_EQ(DescribeCriteria("DetAmnt < 0", Language::kFrench), "Montant < 0");
}

TEST(FilterWords, SpeakTheLanguageOfTheCriteriasReader) {
    const struct {
        const char *criteria, *english, *french;
    } cases[] = {
        {"DetAmnt > 500 AND DetRef = 'AND' or not (DetAmnt < 0)",
         "Amount > 500 and Reference = 'AND' or not (Amount < 0)",
         "Montant > 500 et Référence = 'AND' ou non (Montant < 0)"},
        {"SeqNo IN (1) AND SeqNo not  in (2)", "Entry in (1) and Entry not in (2)",
         "Écriture dans (1) et Écriture pas dans (2)"},
        {"SeqNo NOT BETWEEN 1 AND 2 OR SeqNo BETWEEN 3 AND 4",
         "Entry not between 1 and 2 or Entry between 3 and 4",
         "Écriture pas entre 1 et 2 ou Écriture entre 3 et 4"},
        {"DetRef LIKE 'a%' OR DetRef NOT LIKE 'b%'",
         "Reference like 'a%' or Reference not like 'b%'",
         "Référence comme 'a%' ou Référence pas comme 'b%'"},
        {"DetRef IS NULL OR DetRef IS NOT NULL", "Reference is empty or Reference is not empty",
         "Référence est vide ou Référence n'est pas vide"},
        {"CurrPmtDet_View.PmtAmnt > 100 AND PmtDisc = 0 AND CurrPmtDet_View.CurrPmtType IN (1)",
         "Amount paid > 100 and Discount = 0 and Payment type in (1)",
         "Montant payé > 100 et Escompte = 0 et Type de paiement dans (1)"},
        {"CurrPmtDet_View.PmtRate > CurrPmtDet_View.ExchangeRate", "Payment rate > Invoice rate",
         "Taux du paiement > Taux de la facture"},
        {"\"AND\" = 1 OR DetRef IS", "\"AND\" = 1 or Reference IS", "\"AND\" = 1 ou Référence IS"},
    };
    for (const auto& [criteria, english, french] : cases) {
        EXPECT_EQ(DescribeCriteria(criteria, Language::kEnglish), english);
        EXPECT_EQ(DescribeCriteria(criteria, Language::kFrench), french);
    }
}

TEST(FilterWords, PutAnOrderingInWords) {
    EXPECT_EQ(DescribeOrder("GLAcct.GLAcctId,DetDate  DESC , SeqNo asc", Language::kEnglish),
              "Account, Date descending, Entry");
    EXPECT_EQ(DescribeOrder("DetDate desc", Language::kFrench), "Date décroissant");
    EXPECT_EQ(DescribeOrder("COALESCE(DetRef, ''), Source", Language::kEnglish),
              "COALESCE(Reference, ''), Source");
    EXPECT_EQ(DescribeOrder("", Language::kEnglish), "");
}

TEST(FilterFault, LetsWholeCriteriaAndOrderingsPass) {
    for (const char* filter :
         {"", "|", "DetAmnt > 500|DetDate DESC", "(a = 1 OR (b IN (2, 3)))|COALESCE(c, ')')",
          "DetDesc = 'it''s; (what?) -- /* this' AND \"a)\" = [;?] AND `(` = x'00'",
          "a - -1 / 2 * 3 > 1e-5"})
        EXPECT_EQ(FindFilterFault(filter), "") << filter;
}

TEST(FilterFault, TellsWhatWouldLeaveTheFilterAndWhere) {
    const struct {
        const char *filter, *fault;
    } cases[] = {
        {"1=1) OR (1=1", "in the criteria, at character 4, the parenthesis closes none"},
        {"a = 'é' AND (b IN (1)", "in the criteria, at character 13, the parenthesis is never"},
        {"a = 1|b)", "in the ordering, at character 8, the parenthesis closes none"},
        {"(a = 1|b)", "in the criteria, at character 1, the parenthesis is never"},
        {"a = 1 -- b", "in the criteria, at character 7, a comment"},
        {"a = 1 /* b", "in the criteria, at character 7, a comment"},
        {"|a/**/, b", "in the ordering, at character 3, a comment"},
        {"a = 1; DROP TABLE b", "in the criteria, at character 6, a semicolon"},
        {"a = ?", "in the criteria, at character 5, a parameter"},
        {"|:a", "in the ordering, at character 2, a parameter"},
        {"a = 'b''", "in the criteria, at character 5, a quoted text or name"},
        {"[a = 1", "in the criteria, at character 1, a quoted text or name"},
        {"a = x'00", "in the criteria, at character 5, a quoted text or name"},
        {"a|\"b", "in the ordering, at character 3, a quoted text or name"},
        {"DetDesc = 'a|b'", "in the criteria, at character 11, a quoted text or name"},
        {"a || b = 'c'", "there is more than one bar"},
    };
    for (const auto& [filter, fault] : cases)
        EXPECT_THAT(FindFilterFault(filter), testing::StartsWith(fault)) << filter;
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
    EXPECT_EQ(tool_->ResolveAccounts(" "), "10,11,12,20,21,30,33,40,50,51");
}

TEST_F(FilterToolOfACompany, ResolvesAccountsByThePaymentsThatNameThem) {
    file_.Run(
        "INSERT INTO Invoice (InInvoiId, InvoiId, Source, ExCurrencyId) VALUES (1, 'F1', 'INV', 2);"
        "INSERT INTO Pmt VALUES (5, 1, '2025-01-15', '', 1.4, 11), (6, 3, '2025-01-16', '', 1.4, "
        "10);"
        "INSERT INTO PmtDet VALUES (1, 5, 1, 80, 0), (2, 5, 1, 90, 0), (3, 6, 1, 20, 0)");
    EXPECT_EQ(tool_->ResolveAccounts("CurrPmtDet_View.PmtAmnt > 50"), "11");
    EXPECT_EQ(tool_->ResolveAccounts("CurrPmtDet_View.InvoiId = 'F1'"), "10,11");
    EXPECT_EQ(tool_->ResolveAccounts("CurrPmtDet_View.CurrPmtType = 2"), "-1");
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
