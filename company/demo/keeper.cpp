#include "company/demo/keeper.h"

#include <algorithm>
#include <array>
#include <numeric>
#include <utility>

#include "company/demo/calendar.h"
#include "company/demo/documents.h"

namespace varnel::company::demo {
namespace {

enum class Days { kAll, kPaydays, kMonthEnds };

struct Kind {
    bool (*make)(Books&, Date);
    int share;  // of the lines, in thousandths
    Days days;
};

constexpr Kind kKinds[] = {
    {MakeSale, 230, Days::kAll},
    {MakePurchase, 180, Days::kAll},
    {MakeCustomerPayment, 65, Days::kAll},
    {MakeDeposit, 30, Days::kAll},
    {MakeCheque, 95, Days::kAll},
    {MakeTransfer, 65, Days::kAll},
    {MakeBankCharge, 75, Days::kAll},
    {MakePayroll, 60, Days::kPaydays},
    {MakeCardStatement, 55, Days::kAll},
    {MakeAccrual, 40, Days::kMonthEnds},
    {MakeAmortization, 25, Days::kMonthEnds},
    {MakePrepaidUse, 15, Days::kMonthEnds},
    {MakeProvision, 15, Days::kMonthEnds},
    {MakeLoanPayment, 10, Days::kAll},
    {MakeSundryEntry, 40, Days::kAll},
};
constexpr std::size_t kKindCount = std::size(kKinds);
constexpr std::size_t kAccrualKind = 9, kSundryKind = 14, kTransferKind = 5;

bool IsMonthEndWork(Date date) { return BusinessDaysLeftInMonth(date) < 2; }

bool IsDayFor(Days days, Date date) {
    if (days == Days::kPaydays) return IsPayday(date);
    return days == Days::kAll || IsMonthEndWork(date);
}

// How busy a day is: the season, a steady growth, month ends and paydays.
std::int64_t Weight(Date date) {
    constexpr int kSeason[] = {90, 88, 94, 98, 100, 98, 92, 94, 102, 110, 125, 118};
    const auto civil = date.Civil();
    const std::int64_t growth = 100 + 5 * (civil.year - 2024);
    const int rush = IsMonthEndWork(date) ? 30 : IsPayday(date) ? 15 : 10;
    return kSeason[civil.month - 1] * growth * rush;
}

class Keeper {
  public:
    Keeper(Books& books, std::int64_t lines) : books_(books), lines_(lines) {
        for (Date day = BooksBegin(); day <= BooksEnd(); day = day + 1) {
            if (IsBusinessDay(day)) all_weights_ += Weight(day);
        }
    }

    void Work(Date day) {
        weights_ += Weight(day);
        const std::int64_t wanted = WantedLines();
        Appointments(day);
        while (books_.Lines() < wanted && MakeOne(day, wanted)) {
        }
    }

  private:
    std::int64_t WantedLines() const {
        __extension__ using Wide = __int128;
        return static_cast<std::int64_t>(static_cast<Wide>(lines_) * weights_ / all_weights_);
    }

    template <class Make>
    bool Count(std::size_t kind, Make make) {
        const std::int64_t before = books_.Lines();
        const bool made = make();
        made_[kind] += books_.Lines() - before;
        return made;
    }

    // Tries the kinds in the order in which they are behind their share.
    bool MakeOne(Date day, std::int64_t wanted) {
        const auto behind = [&](std::size_t kind) {
            return kKinds[kind].share * wanted - 1000 * made_[kind];
        };
        std::array<std::size_t, kKindCount> order;
        std::iota(order.begin(), order.end(), std::size_t{0});
        std::ranges::stable_sort(order, std::greater<>(), behind);
        if (IsShortOfCash(books_) && Make(kTransferKind, day)) return true;
        return std::ranges::any_of(order, [&](std::size_t kind) { return Make(kind, day); });
    }

    bool Make(std::size_t kind, Date day) {
        if (!IsDayFor(kKinds[kind].days, day)) return false;
        return Count(kind, [&] { return kKinds[kind].make(books_, day); });
    }

    // What is due on a date whatever else there is to do. A small company remits by the quarter.
    void Appointments(Date day) {
        const auto civil = day.Civil();
        const bool first = day - MonthBegin(day) < 6 && civil.month != month_begun_;
        if (first) {
            month_begun_ = civil.month;
            if (civil.month == 1) books_.BeginYear();
            Count(kAccrualKind, [&] { return ReverseAccruals(books_, day), true; });
        }
        constexpr std::int64_t kMonthlyRemittances = 6'000;
        const bool remits = lines_ >= kMonthlyRemittances || civil.month % 3 == 1;
        if (civil.day >= 15 && civil.month != month_remitted_) {
            month_remitted_ = civil.month;
            if (remits) Count(kSundryKind, [&] { return Remit(day); });
        }
        if (civil.month == 12 && BusinessDaysLeftInMonth(day) == 0) CloseYear(day);
    }

    bool Remit(Date day) {
        RemitTaxes(books_, day);
        RemitPayroll(books_, day);
        const auto [year, month, ignored] = day.Civil();
        if (year == 2024) PayEndingContract(books_, day);
        if (month == 2) PayIncomeTaxes(books_, day);
        if (month == 4) PayDividend(books_, day, std::exchange(dividend_, Currency()));
        return true;
    }

    void CloseYear(Date day) {
        dividend_ = Share(books_.ProfitBeforeTaxes(), 55, 100);
        Count(kSundryKind, [&] { return ProvideForIncomeTaxes(books_, day); });
    }

    Books& books_;
    std::int64_t lines_;
    std::int64_t all_weights_ = 0, weights_ = 0;
    std::array<std::int64_t, kKindCount> made_{};
    int month_begun_ = 0, month_remitted_ = 0;
    Currency dividend_;
};

}  // namespace

void KeepBooks(Books& books, std::int64_t lines,
               const std::function<void(std::int64_t)>& progress) {
    OpenBooks(books);
    Keeper keeper(books, lines);
    for (Date day = BooksBegin(); day <= BooksEnd(); day = day + 1) {
        if (!IsBusinessDay(day)) continue;
        keeper.Work(day);
        progress(books.Lines());
    }
}

}  // namespace varnel::company::demo
