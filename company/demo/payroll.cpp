#include <algorithm>

#include "company/demo/documents.h"

namespace varnel::company::demo {
namespace {

struct Rule {
    const char* account;
    int permille;  // of gross pay
};

constexpr Rule kDepartments[] = {{"5110", 318}, {"5120", 412}, {"5130", 270}};
constexpr Rule kEmployerShare[] = {{"5150", 61}, {"5160", 46}, {"5170", 27}, {"5180", 13}};
constexpr Rule kWithheld[] = {{"2110", 118}, {"2120", 131}};
// What both sides pay together.
constexpr Rule kContributions[] = {{"2130", 119}, {"2140", 71}, {"2150", 41}};

void AddPay(Entry& entry, Random& random, Currency gross) {
    const bool two_segments = random.Chance(450);
    for (const Rule& rule : kDepartments) {
        if (two_segments && rule.permille == 270) entry.segment = 1 + entry.segment % 5;
        entry.Add(rule.account, Share(gross, rule.permille, 1000));
    }
    for (const Rule& rule : kEmployerShare) {
        entry.Add(rule.account, Share(gross, rule.permille, 1000));
    }
}

// Four per cent is earned as vacation with every pay; in July and August some of the pay is that.
void AddVacation(Entry& entry, Books& books, Currency gross) {
    const Currency earned = Share(gross, 40, 1000);
    entry.Add("5140", earned);
    entry.Add("2160", -earned);
    const int month = entry.date.Civil().month;
    const Currency taken = std::min(Share(gross, 240, 1000), -books.Balance("2160"));
    if ((month == 7 || month == 8) && taken > Currency()) {
        entry.Add("2160", taken);
        entry.Add("5120", -taken);
    }
}

}  // namespace

bool MakePayroll(Books& books, Date date) {
    Random& random = books.random;
    const Currency gross = Cents(random.About(560'000, 25));
    Entry entry{.date = date};
    entry.description = "Payroll – two weeks ended " + date.ToIso();
    books.PickSegmentAndProject(entry);
    AddPay(entry, random, gross);
    AddVacation(entry, books, gross);
    for (const Rule& rule : kWithheld) entry.Add(rule.account, -Share(gross, rule.permille, 1000));
    for (const Rule& rule : kContributions) {
        entry.Add(rule.account, -Share(gross, rule.permille, 1000));
    }
    entry.BalanceOn("1020");
    books.PostJournal(entry);
    return true;
}

}  // namespace varnel::company::demo
