#include "tests/trial/trial_figures.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>

#include "framework/cls_report.h"
#include "reports/trial/trial_balance_detail.h"
#include "tests/support/collected_bands.h"

namespace varnel::test {

namespace {

Units Amount(const CollectedControl& control) {
    const auto* const amount = std::get_if<Currency>(&control.value);
    return amount == nullptr || !control.visible ? 0 : amount->Scaled();
}

Units DebitLessCredit(const CollectedBand& band, const std::string& suffix = "") {
    return Amount(band["txtDebit" + suffix]) - Amount(band["txtCredit" + suffix]);
}

Units Balance(const CollectedBand& band, const std::string& amount, const std::string& type) {
    const Units balance = Amount(band[amount]);
    EXPECT_GE(balance, 0) << amount;
    return band.Text(type) == "CT" ? -balance : balance;
}

// Lines of one entry have no order among themselves.
auto Rank(const Detail::Line& line) {
    return std::tuple(line.date, line.entry, line.amount, line.foreign);
}

/// Of the trial balance's detail, or of the ledger by account.
class DetailReader {
  public:
    explicit DetailReader(bool ledger) : ledger_(ledger) {}

    void Read(const CollectedBand& band) {
        if (band.section == "ghAccount") BeginAccount(band);
        if (band.section == (ledger_ ? "ghForward" : "ghAccount")) BringForward(band);
        if (band.section == "Detail") AddLine(band);
        if (band.section == "gfAccount") EndAccount(band);
        if (band.section == "ReportFooter") ReadTotals(band);
    }

    Detail detail;

  private:
    void BeginAccount(const CollectedBand& band) {
        detail.accounts.emplace_back().account = band.Text("txtGLAcctId");
    }

    void BringForward(const CollectedBand& band) {
        auto& account = detail.accounts.back();
        account.key = band["txtBalanceForward"].tag;
        account.forward = Balance(band, "txtBalanceForward", "lblBalanceForwardType");
        if (!ledger_) account.unrealized = Balance(band, "txtGPUnrealized", "lblGPUnrealizedType");
        running_ = account.forward + account.unrealized;
    }

    void AddLine(const CollectedBand& band) {
        const Units amount = DebitLessCredit(band);
        running_ += amount;
        EXPECT_EQ(Balance(band, "txtBalance", "lblBalanceType"), running_);
        detail.accounts.back().lines.push_back(
            {.date = std::get<Date>(band["txtDetDate"].value),
             .entry = std::stoi(band.Text("txtSeqNo")),
             .amount = amount,
             .key = band["txtDebit"].tag,
             .foreign = Amount(band[ledger_ ? "txtForeign" : "txtCurrency"])});
    }

    void EndAccount(const CollectedBand& band) {
        auto& account = detail.accounts.back();
        account.has_footer = true;
        account.debit = Amount(band["txtDebitTotal"]);
        account.credit = Amount(band["txtCreditTotal"]);
        account.closing = Balance(band, "txtBalanceTotal", "lblBalanceTotalType");
        std::sort(account.lines.begin(), account.lines.end(),
                  [](const auto& a, const auto& b) { return Rank(a) < Rank(b); });
    }

    void ReadTotals(const CollectedBand& band) {
        if (!ledger_) detail.adjustment = DebitLessCredit(band, "Adj");
        detail.debit = Amount(band["txtDebitGrandTotal"]);
        detail.credit = Amount(band["txtCreditGrandTotal"]);
        detail.balance = Balance(band, "txtBalanceGrandTotal", "lblBalanceGrandTotalType");
    }

    bool ledger_;
    Units running_ = 0;
};

}  // namespace

Units Summary::Of(const std::string& account) const {
    for (const auto& line : lines)
        if (line.account == account) return line.amount;
    return 0;
}

Detail::Account Detail::Of(const std::string& account) const {
    for (const auto& printed : accounts)
        if (printed.account == account) return printed;
    return {.account = account, .key = {}};
}

Summary RunSummary(const std::shared_ptr<Application>& host, const Question& question) {
    const auto report = clsReport().TrialBalanceSummary();
    Configure(*report, host, question);
    Summary summary;
    for (const auto& band : Collect(*report->IReport_ReportDesigner()).bands) {
        if (band.section == "Detail")
            summary.lines.push_back({band.Text("txtAcctId"), DebitLessCredit(band),
                                     band["txtDebit"].tag, Amount(band["txtCurrency"])});
        if (band.section == "ReportFooter") {
            summary.adjustment = DebitLessCredit(band, "Adj");
            summary.debit = Amount(band["txtDebitGrandTotal"]);
            summary.credit = Amount(band["txtCreditGrandTotal"]);
        }
    }
    return summary;
}

Detail RunDetail(const std::shared_ptr<Application>& host, const Question& question) {
    const auto report = clsReport().TrialBalanceDetail(question.hide_inactive);
    Configure(*report, host, question);
    auto& selection = dynamic_cast<reports::dsrTrialBalanceDetail&>(*report).GetSelection();
    selection.project_ids = Listed(question.projects);
    if (question.accounts.size() == 1)
        selection.single_account = question.accounts.front();
    else
        selection.account_ids = Listed(question.accounts);
    DetailReader reader(false);
    for (const auto& band : Collect(*report->IReport_ReportDesigner()).bands) reader.Read(band);
    return reader.detail;
}

Detail RunLedger(const std::shared_ptr<Application>& host, const Question& question) {
    const auto report = clsReport().GeneralLedgerByAccount();
    Configure(*report, host, question);
    DetailReader reader(true);
    for (const auto& band : Collect(*report->IReport_ReportDesigner()).bands) reader.Read(band);
    return reader.detail;
}

DebitAndCredit RunGeneralLedger(const std::shared_ptr<Application>& host, int type,
                                const Question& question) {
    const auto report = clsReport().GeneralLedger(static_cast<std::int16_t>(type));
    Configure(*report, host, question);
    const auto footer = Collect(*report->IReport_ReportDesigner()).Of("ReportFooter").at(0);
    return {Amount(footer["txtDebitGrandTotal"]), Amount(footer["txtCreditGrandTotal"])};
}

Gifi RunGifi(const std::shared_ptr<Application>& host, const Question& question) {
    const auto report = clsReport().GIFIReport();
    Configure(*report, host, question);
    Gifi gifi;
    for (const auto& band : Collect(*report->IReport_ReportDesigner()).bands) {
        if (band.section == "ghGIFI") gifi.codes.push_back({.code = band.Text("txtGIFIAcctId")});
        if (band.section == "Detail") {
            const std::string& text = band.Text("txtDescr");
            gifi.codes.back().lines.push_back(
                {text.substr(0, text.find(' ')), Amount(band["txtAmount"]), band["txtAmount"].tag});
        }
        if (band.section == "gfGIFI") gifi.codes.back().total = Amount(band["txtTotal"]);
        if (band.section == "ReportFooter")
            gifi.count = std::get<std::int32_t>(band["txtCount"].value);
    }
    return gifi;
}

std::vector<std::string> InWords(const Summary& summary) {
    std::vector<std::string> words;
    for (const auto& line : summary.lines)
        words.push_back(
            Words({line.account, Decimal(line.amount), line.key, Decimal(line.foreign)}));
    words.push_back(Words(
        {"total", Decimal(summary.adjustment), Decimal(summary.debit), Decimal(summary.credit)}));
    return words;
}

std::vector<std::string> InWords(const Detail& detail) {
    std::vector<std::string> words;
    for (const auto& account : detail.accounts) {
        words.push_back(Words(
            {account.account, account.key, Decimal(account.forward), Decimal(account.unrealized)}));
        for (const auto& line : account.lines)
            words.push_back(Words({line.date.ToIso(), std::to_string(line.entry),
                                   Decimal(line.amount), line.key, Decimal(line.foreign)}));
        if (account.has_footer)
            words.push_back(Words({"subtotal", Decimal(account.debit), Decimal(account.credit),
                                   Decimal(account.closing)}));
    }
    words.push_back(Words({"total", Decimal(detail.adjustment), Decimal(detail.debit),
                           Decimal(detail.credit), Decimal(detail.balance)}));
    return words;
}

std::vector<std::string> InWords(const Gifi& gifi) {
    std::vector<std::string> words;
    for (const auto& code : gifi.codes) {
        for (const auto& line : code.lines)
            words.push_back(Words({line.account, Decimal(line.amount), line.key}));
        words.push_back(Words({code.code, Decimal(code.total)}));
    }
    words.push_back(std::to_string(gifi.count));
    return words;
}

}  // namespace varnel::test
