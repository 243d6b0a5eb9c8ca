#include "framework/exchange_rates_note.h"

#include "framework/standard_header.h"
#include "framework/styles.h"
#include "framework/texts.h"

namespace varnel::framework {

namespace {

constexpr std::int16_t kRatesText = 5914;
constexpr std::string_view kPlace = "{0}";
constexpr Twips kNoteHeight = 220;

ControlLayout Note() {
    return {.name = kExchangeRatesNote,
            .kind = ControlKind::kLabel,
            .box = {0, kHeaderBlockHeight, kLayoutWidth, kNoteHeight},
            .style = kQuiet,
            .can_grow = true,
            .stretch = Stretch::kWiden};
}

}  // namespace

std::vector<ControlLayout> PageHeaderControlsWithRates(std::vector<ControlLayout> column_controls) {
    column_controls.insert(column_controls.begin(), Note());
    return PageHeaderControls(std::move(column_controls));
}

std::string ExchangeRatesText(Application& application, std::string_view what) {
    std::string text = PlainText(application, kRatesText);
    const auto place = text.find(kPlace);
    return place == std::string::npos ? text : text.replace(place, kPlace.size(), what);
}

std::string RatesLegend(Application& application, IExchangeRates& rates) {
    auto& info = application.CurrentContext().CurrentCompany().GetCurrencyInfo();
    if (!info.CieIsForeignCurrencyUsed()) return {};
    return info.GetCurrencies().GetCurrenciesLegend(rates);
}

void ShowRatesLine(Surface& surface, const std::string& text) {
    const bool shown = !text.empty();
    SetHeaderBlockHeight(surface, kHeaderBlockHeight + (shown ? kNoteHeight : 0));
    Control& note = surface.At(kExchangeRatesNote);
    note.SetVisible(shown);
    note.SetText(text);
}

void ShowExchangeRatesNote(Application& application, Surface& surface, IExchangeRates& rates,
                           bool wanted) {
    const std::string legend = wanted ? RatesLegend(application, rates) : std::string();
    ShowRatesLine(surface, legend.empty() ? legend : ExchangeRatesText(application, legend));
}

}  // namespace varnel::framework
