#include "tests/statements/statement_figures.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "framework/cls_report.h"
#include "tests/support/collected_bands.h"

namespace varnel::test {

namespace {

// Blank where there is no text.
std::optional<Units> Amount(const CollectedControl& control) {
    if (!control.visible || control.text.empty()) return std::nullopt;
    const auto* const amount = std::get_if<Currency>(&control.value);
    if (amount != nullptr) return amount->Scaled();
    ADD_FAILURE() << "\"" << control.text << "\" has no amount";
    return std::nullopt;
}

std::vector<std::optional<Units>> Amounts(const CollectedBand& band,
                                          const std::vector<std::string>& controls) {
    std::vector<std::optional<Units>> amounts;
    for (const auto& name : controls) amounts.push_back(Amount(band[name]));
    return amounts;
}

std::vector<Units> Printed(const std::vector<std::optional<Units>>& amounts) {
    std::vector<Units> printed;
    for (const auto& amount : amounts)
        if (amount) printed.push_back(*amount);
    return printed;
}

class StatementReader {
  public:
    /// `suffixes` are those of the columns in the names of controls.
    StatementReader(const std::shared_ptr<Application>& host, std::vector<std::string> suffixes)
        : host_(host),
          suffixes_(std::move(suffixes)),
          is_sheet_(std::ranges::count(suffixes_, "Cul") == 0) {}

    PrintedStatement Read(IReport& report) {
        for (const auto& band : Collect(*report.IReport_ReportDesigner()).bands) {
            if (band.depth == 1) ReadAdjusted(band);
            if (band.depth != 0) continue;
            if (band.section == "ghAcctType") statement_.sections.emplace_back();
            if (band.section == "Detail") AddRow(band);
            if (band.section == "gfAcctType") EndSection(band);
            if (band.section == "ReportFooter" && is_sheet_) ReadClosing(band);
        }
        return std::move(statement_);
    }

  private:
    std::vector<std::string> Columns(const std::string& control) const {
        std::vector<std::string> names;
        for (const auto& suffix : suffixes_) names.push_back(control + suffix);
        return names;
    }
    int TextNumber(const CollectedControl& control) const {
        if (!control.visible) return 0;
        for (const int number : {2667, 2669, 2671, 2672, 2674, 2676, 2678, 2679, 2680, 8324})
            if (host_->GetText(static_cast<std::int16_t>(number)) == control.text) return number;
        ADD_FAILURE() << "\"" << control.text << "\" is no text of the statements";
        return 0;
    }

    void AddRow(const CollectedBand& band) {
        const std::string& text = band.Text("txtDescr");
        const std::string name = "Account ";
        const auto columns = Columns("txtTotal");
        if (!is_sheet_) {
            EXPECT_EQ(band["txtTotalCul"].tag, band["txtTotal"].tag);
        }
        statement_.sections.back().rows.push_back(
            {std::stoi(text.substr(text.find(name) + name.size())), Amounts(band, columns),
             band["txtTotal"].tag});
    }
    void EndSection(const CollectedBand& band) {
        auto& section = statement_.sections.back();
        section.caption = TextNumber(band["lblTypeCap"]);
        section.totals = Printed(Amounts(band, Columns("txtTypeTotal")));
        if (is_sheet_) return;
        section.result_caption = TextNumber(band["lblGTot"]);
        section.results = Printed(Amounts(band, Columns("txtTotalPassCap")));
    }
    void ReadClosing(const CollectedBand& band) {
        statement_.closing_caption = TextNumber(band["lblGTot"]);
        statement_.closing = Amount(band["txtTotalPassCap"]).value_or(0);
        if (suffixes_.size() > 1)
            statement_.closing_compared = Amount(band["txtTotalPassCapComp"]).value_or(0);
    }

    void ReadAdjusted(const CollectedBand& band) {
        if (band.section == "ReportFooter")
            statement_.adjusted =
                Printed(Amounts(band, {"txtTotalPassCap", "txtTotalPassCapPassed"}));
    }

    std::shared_ptr<Application> host_;
    std::vector<std::string> suffixes_;
    bool is_sheet_;
    PrintedStatement statement_;
};

std::string Listing(const std::vector<Units>& amounts) {
    std::string text;
    for (const Units amount : amounts) text += (text.empty() ? "" : " ") + Decimal(amount);
    return text;
}

std::shared_ptr<IReport> NewIncomeStatement(const StatementQuestion& question) {
    if (!question.projects.empty())
        return clsReport().IncomeStatementProj(Listed(question.projects), question.cumul_to,
                                               question.cumul_from);
    auto report = clsReport().IncomeStatement();
    auto& properties = dynamic_cast<Object&>(*report);
    properties.Put("CumulDateFrom", question.cumul_from);
    properties.Put("CumulDateTo", question.cumul_to);
    return report;
}

}  // namespace

Units PrintedStatement::Of(int account, std::size_t column) const {
    for (const auto& section : sections)
        for (const auto& row : section.rows)
            if (row.account == account) return row.amounts[column].value_or(0);
    return 0;
}

const PrintedStatement::Section* PrintedStatement::Captioned(int number) const {
    for (const auto& section : sections)
        if (section.caption == number) return &section;
    return nullptr;
}

PrintedStatement RunIncomeStatement(const std::shared_ptr<Application>& host,
                                    const StatementQuestion& question) {
    const auto report = NewIncomeStatement(question);
    Configure(*report, host, question);
    return StatementReader(host, {"", "Cul"}).Read(*report);
}

PrintedStatement RunBalanceSheet(const std::shared_ptr<Application>& host,
                                 const StatementQuestion& question) {
    const auto report = clsReport().BalanceSheet();
    Configure(*report, host, question);
    return StatementReader(host, {""}).Read(*report);
}

PrintedStatement RunComparativeIncome(const std::shared_ptr<Application>& host,
                                      const StatementQuestion& question, bool with_budget) {
    const auto report = with_budget ? clsReport().ComparativeIncomeStatementBudget()
                                    : clsReport().ComparativeIncomeStatement();
    auto& properties = dynamic_cast<Object&>(*report);
    properties.Put("CumulativeDateFrom", question.cumul_from);
    properties.Put("CumulativeDateTo", question.cumul_to);
    Configure(*report, host, question);
    return StatementReader(host, {"", "Cul", "Comp", "Doll"}).Read(*report);
}

PrintedStatement RunComparativeSheet(const std::shared_ptr<Application>& host,
                                     const StatementQuestion& question) {
    const auto report = clsReport().ComparativeBalanceSheet();
    Configure(*report, host, question);
    return StatementReader(host, {"", "Comp", "Doll"}).Read(*report);
}

std::vector<std::string> InWords(const PrintedStatement& statement) {
    std::vector<std::string> words;
    for (const auto& section : statement.sections) {
        for (const auto& row : section.rows) {
            std::string amounts;
            for (const auto& amount : row.amounts)
                amounts += amount ? Decimal(*amount) + " " : "blank ";
            words.push_back(Words({std::to_string(row.account), amounts, row.key}));
        }
        words.push_back(Words({std::to_string(section.caption), Listing(section.totals),
                               std::to_string(section.result_caption), Listing(section.results)}));
    }
    words.push_back(Words({std::to_string(statement.closing_caption), Decimal(statement.closing)}));
    return words;
}

std::string InWords(const StatementQuestion& question) {
    return Words({InWords(static_cast<const Question&>(question)), "cumulative",
                  question.cumul_from.ToIso(), "to", question.cumul_to.ToIso()});
}

}  // namespace varnel::test
