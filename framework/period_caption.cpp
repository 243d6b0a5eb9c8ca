#include "framework/period_caption.h"

#include "framework/texts.h"

namespace varnel::framework {

namespace {

constexpr std::int16_t kAllDates = 1376;
constexpr std::int16_t kAsAt = 1776;
constexpr std::int16_t kFrom = 3012;
constexpr std::int16_t kTo = 3013;

}  // namespace

std::string JournalPeriodCaption(Application& application, Date from, Date to) {
    if (from == kOpenStart || to == kOpenEnd) return PlainText(application, kAllDates);
    return PlainText(application, kFrom) + " " + ShortDate(application, from) + " " +
           PlainText(application, kTo) + " " + ShortDate(application, to);
}

std::string TrialPeriodCaption(Application& application, Date from, Date to) {
    if (to == kOpenEnd) return PlainText(application, kAllDates);
    return PlainText(application, kTo) + " " + ShortDate(application, from) + " " +
           PlainText(application, kFrom) + " " + ShortDate(application, to);
}

std::string StatementPeriodCaption(Application& application, Date from, Date to) {
    if (from == kOpenStart && to == kOpenEnd) return PlainText(application, kAllDates);
    std::string caption;
    if (from != kOpenStart) caption = ShortDate(application, from) + " ";
    const Date last = to == kOpenEnd ? application.SessionDate() : to;
    return caption + PlainText(application, kFrom) + " " + ShortDate(application, last);
}

std::string ClosingDateCaption(Application& application, Date to) {
    if (to == kOpenEnd) return PlainText(application, kAllDates);
    return PlainText(application, kAsAt) + " " + ShortDate(application, to);
}

}  // namespace varnel::framework
