#include "company/services/currencies.h"

#include <algorithm>

#include "company/services/id_list.h"
#include "company/services/query.h"
#include "company/services/setting_names.h"
#include "host/company.h"
#include "host/error.h"

namespace varnel::company {

namespace {

CurrencyRecord ReadRecord(const Row& row) {
    CurrencyRecord record;
    record.id = row.Integer(Column{0});
    record.code = row.Text(Column{1});
    record.description = row.Text(Column{2});
    record.decimals = row.Integer(Column{3});
    record.ar_account_id = row.Integer(Column{4});
    record.ap_account_id = row.Integer(Column{5});
    if (record.decimals < 0 || record.decimals > Currency::kDecimals)
        throw Error(error_number::kInvalidArgument, "Currencies",
                    "The currency " + record.code + " has " + std::to_string(record.decimals) +
                        " decimals; 0 to 4 are possible");
    return record;
}

}  // namespace

const std::vector<CurrencyRecord>& CompanyCurrencies::All() {
    if (!records_.empty()) return records_;
    std::vector<CurrencyRecord> records;
    const auto rows = Query(database_,
                            "SELECT InCurrencyId, CurrencyCode, Descr, Decimals, ARGLAccountId, "
                            "APGLAccountId FROM WorldCurrency ORDER BY CurrencyCode");
    for (; !rows->AtEnd(); rows->MoveNext()) records.push_back(ReadRecord(rows->Current()));
    for (std::size_t i = 0; i < records.size(); ++i) places_[records[i].id] = i;
    records_ = std::move(records);
    return records_;
}

const CurrencyRecord& CompanyCurrencies::Item(std::int32_t currency_id) {
    const auto& records = All();
    const auto place = places_.find(currency_id);
    if (place == places_.end())
        throw Error(error_number::kInvalidArgument, "Currencies",
                    "The company has no currency with the id " + std::to_string(currency_id));
    return records[place->second];
}

const CurrencyRecord& CompanyCurrencies::ItemByCode(std::string_view code) {
    std::string codes;
    for (const auto& record : All()) {
        if (SameName(record.code, code)) return record;
        codes += (codes.empty() ? "" : ", ") + record.code;
    }
    throw Error(error_number::kInvalidArgument, "Currencies",
                "The company has no currency " + std::string(code) + "; it has " + codes);
}

std::int32_t CompanyCurrencies::HomeId() {
    if (!home_id_) home_id_ = settings_.Id(setting::kHomeCurrencyId);
    return *home_id_;
}

bool CompanyCurrencies::ForeignUsed() {
    if (!foreign_used_) {
        const auto set = settings_.FindTruth(setting::kUseForeignCurrency);
        foreign_used_ = set ? *set : All().size() > 1;
    }
    return *foreign_used_;
}

std::string CompanyCurrencies::GetCurrenciesLegend(IExchangeRates& rates) {
    std::string legend;
    const auto& collection = rates.IExchangeRates_ExchangeRates();
    if (!collection) return legend;
    for (const auto& record : All()) {
        if (record.id == HomeId() || !collection->Has(record.id)) continue;
        std::string rate = collection->Item(record.id).ToText();
        rate.replace(rate.find('.'), 1, decimal_mark_);
        legend += (legend.empty() ? "" : "; ") + record.code + " " + rate;
    }
    return legend;
}

std::string CompanyCurrencies::GetAllARAPGLAccountUsed() {
    std::vector<std::int32_t> ids{params_.Find(account_param::kReceivable, kCompanySection),
                                  params_.Find(account_param::kPayable, kCompanySection)};
    for (const auto& record : All()) {
        ids.push_back(record.ar_account_id);
        ids.push_back(record.ap_account_id);
    }
    std::sort(ids.begin(), ids.end());
    ids.erase(std::unique(ids.begin(), ids.end()), ids.end());
    std::string list;
    for (const auto id : ids)
        if (id != 0) AppendId(id, list);
    return ListOrNone(std::move(list));
}

}  // namespace varnel::company
