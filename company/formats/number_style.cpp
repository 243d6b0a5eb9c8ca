#include "company/formats/number_style.h"

#include <array>
#include <cstring>

namespace varnel::company {

namespace {

constexpr auto kDigitPairs = [] {
    std::array<char, 200> pairs{};
    for (std::size_t i = 0; i < 100; ++i) {
        pairs[2 * i] = static_cast<char>('0' + i / 10);
        pairs[2 * i + 1] = static_cast<char>('0' + i % 10);
    }
    return pairs;
}();

/// Text that grows from its end to its front: numbers come out last digit first.
class BackwardText {
  public:
    void Pair(std::uint64_t below_100) {
        start_ -= 2;
        std::memcpy(start_, &kDigitPairs[2 * below_100], 2);
    }
    void Digit(std::uint64_t below_10) { *--start_ = static_cast<char>('0' + below_10); }
    void Mark(const std::string& mark) {
        if (mark.size() == 1) {
            *--start_ = mark[0];
            return;
        }
        start_ -= mark.size();
        std::memcpy(start_, mark.data(), mark.size());
    }
    void AppendTo(std::string& out) const {
        out.append(start_, static_cast<std::size_t>(buffer_ + sizeof buffer_ - start_));
    }

  private:
    // 20 digits, as many marks of four bytes, and the sign.
    char buffer_[128];
    char* start_ = buffer_ + sizeof buffer_;
};

void PlainDigits(std::uint64_t number, BackwardText& text) {
    for (; number >= 100; number /= 100) text.Pair(number % 100);
    if (number >= 10) return text.Pair(number);
    text.Digit(number);
}

void GroupsOfThree(std::uint64_t number, const std::string& mark, BackwardText& text) {
    while (number >= 1'000) {
        const std::uint64_t rest = number / 1'000;
        const std::uint64_t group = number - rest * 1'000;
        text.Pair(group % 100);
        text.Digit(group / 100);
        text.Mark(mark);
        number = rest;
    }
    PlainDigits(number, text);
}

void GroupedDigits(std::uint64_t number, const NumberStyle& style, BackwardText& text) {
    int left_in_group = style.first_group;
    for (;;) {
        text.Digit(number % 10);
        number /= 10;
        if (number == 0) return;
        if (--left_in_group > 0) continue;
        text.Mark(style.group_mark);
        left_in_group = style.further_groups;
    }
}

void WholeNumber(std::uint64_t number, const NumberStyle& style, BackwardText& text) {
    if (style.first_group == 0) return PlainDigits(number, text);
    if (style.first_group == 3 && style.further_groups == 3)
        return GroupsOfThree(number, style.group_mark, text);
    GroupedDigits(number, style, text);
}

}  // namespace

void AppendDecimal(const NumberStyle& style, std::uint64_t units, int decimals, bool negative,
                   std::string& out) {
    BackwardText text;
    if (negative) text.Mark(style.negative_suffix);
    if (decimals == 2) {
        text.Pair(units % 100);
        units /= 100;
    } else {
        for (int i = 0; i < decimals; ++i, units /= 10) text.Digit(units % 10);
    }
    if (decimals > 0) text.Mark(style.decimal_mark);
    WholeNumber(units, style, text);
    if (negative) text.Mark(style.negative_prefix);
    text.AppendTo(out);
}

}  // namespace varnel::company
