#include "company/services/rate_table.h"

#include "company/services/query.h"

namespace varnel::company {

std::vector<DatedRate> RatesAt(CompanyDatabase& database, Date date) {
    std::vector<DatedRate> rates;
    const auto rows = Query(database,
                            "SELECT ExchangeRate.ExCurrencyId, RateDate, Rate FROM ExchangeRate "
                            "INNER JOIN (SELECT ExCurrencyId, MAX(RateDate) AS LastDate "
                            "FROM ExchangeRate WHERE RateDate <= ? GROUP BY ExCurrencyId) AS Last "
                            "ON ExchangeRate.ExCurrencyId = Last.ExCurrencyId "
                            "AND ExchangeRate.RateDate = Last.LastDate",
                            {date});
    for (; !rows->AtEnd(); rows->MoveNext()) {
        const Row& row = rows->Current();
        rates.push_back({row.Integer(Column{0}), row.Day(Column{1}), row.ExchangeRate(Column{2})});
    }
    return rates;
}

}  // namespace varnel::company
