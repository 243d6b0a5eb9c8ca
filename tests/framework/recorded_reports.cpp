#include "tests/framework/recorded_reports.h"

namespace varnel {

namespace test {

namespace {

constexpr std::string_view kNames[] = {"dsrGeneralJournal",
                                       "dsrGeneralLedger",
                                       "dsrGeneralLedgerByAccount",
                                       "dsrTrialBalanceSummary",
                                       "dsrTrialBalanceDetail",
                                       "dsrIncomeStatement",
                                       "dsrBalanceSheet",
                                       "dsrComparativeIncomeStatement",
                                       "dsrComparativeBalanceSheet",
                                       "dsrGIFIReport",
                                       "dsrBankReconciliation",
                                       "dsrCurrentBankReconciliation",
                                       "dsrUnRealExchProfitloss",
                                       "dsrUnRealExchProfitlossDetail",
                                       "dsrRealizedExchProfitloss"};

template <std::size_t index>
std::shared_ptr<IReport> Make() {
    static const Layout layout{
        .name = kNames[index],
        .sections = {{.name = "Detail", .controls = {{.name = "lblType", .box = {}}}}}};
    return std::make_shared<RecordedReport>(layout);
}

template <std::size_t... index>
std::vector<framework::CatalogueEntry> MakeCatalogue(std::index_sequence<index...>) {
    return {{kNames[index], 6173, Make<index>}...};
}

class MadeAccount final : public Object {
    std::string_view ObjectName() const override { return "CGLAcct"; }
};

}  // namespace

void RecordedReport::Put(std::string_view name, const Variant& value) {
    options.push_back(std::string(name) + " = " + value.ToText());
}

std::span<framework::CatalogueEntry> RecordedCatalogue() {
    static auto entries = MakeCatalogue(std::make_index_sequence<std::size(kNames)>());
    return entries;
}

std::span<framework::PublicClass> RecordedClasses() {
    static framework::PublicClass classes[] = {
        {"Varnel.CGLAcct", [] { return ObjectRef(std::make_shared<MadeAccount>()); }},
        {"Varnel.CGLAcctHelper", nullptr}};
    return classes;
}

}  // namespace test

std::span<const framework::CatalogueEntry> framework::Catalogue() {
    return test::RecordedCatalogue();
}

std::span<const framework::PublicClass> framework::PublicClasses() {
    return test::RecordedClasses();
}

}  // namespace varnel
