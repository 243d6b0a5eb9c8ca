#include "render/pages/pdf_pages.h"

#include <algorithm>
#include <cmath>

#include "render/fonts/line_breaker.h"
#include "render/pages/print_style.h"

namespace varnel::render {

namespace {

PdfInfo InfoOf(const engine::DocumentInfo& info) {
    return {.title = info.title,
            .author = info.company,
            .subject = info.company.empty() ? info.title : info.title + ", " + info.company,
            .language = info.language,
            .creation_date = info.date,
            .producer = info.creator.empty() ? "Varnel" : info.creator};
}

/// Puts the page number for "{0}" and the number of pages for "{1}".
void FillPageNumber(std::string& out, std::string_view pattern, int number, int page_count) {
    out.clear();
    while (!pattern.empty()) {
        const bool is_number = pattern.substr(0, 3) == "{0}";
        if (is_number || pattern.substr(0, 3) == "{1}") {
            out += std::to_string(is_number ? number : page_count);
            pattern.remove_prefix(3);
        } else {
            out += pattern.front();
            pattern.remove_prefix(1);
        }
    }
}

double LeftOf(const engine::Item& item, double width) {
    const double spare = Points(item.box.width) - width;
    const double left = Points(item.box.left);
    if (item.align == Align::kRight) return left + spare;
    return item.align == Align::kCenter ? left + spare / 2 : left;
}

/// The baseline that sets a line of text well into its box, from the top of the page.
double Baseline(const engine::Item& item) {
    // By the box alone, so that texts of different sizes beside each other share their baseline.
    constexpr double kAbove = 0.78;
    return Points(item.box.top) + kAbove * Points(item.box.height);
}

}  // namespace

void PdfPageWriter::Begin(const engine::DocumentInfo& info, int) {
    writer_.emplace(sink_, fonts_, InfoOf(info), options_);
}

void PdfPageWriter::Write(const engine::Page& page, int number, int page_count) {
    PdfPage& drawn = writer_->BeginPage(Points(page.width), Points(page.height));
    // Rules first: they lie below the text, and the texts stay in one text object.
    for (const engine::Item& item : page.content.Items()) {
        if (item.kind == engine::ItemKind::kRule) DrawRule(drawn, item);
    }
    for (const engine::Item& item : page.content.Items()) {
        if (item.kind == engine::ItemKind::kText) DrawText(drawn, item, page.content.Text(item));
        if (item.kind != engine::ItemKind::kPageNumber) continue;
        FillPageNumber(page_number_, page.content.Text(item), number, page_count);
        DrawText(drawn, item, page_number_);
    }
    writer_->EndPage();
}

void PdfPageWriter::End() {
    if (writer_->PageCount() == 0) {
        constexpr engine::PageSetup kBlank;
        writer_->BeginPage(Points(kBlank.paper_width), Points(kBlank.paper_height));
        writer_->EndPage();
    }
    writer_->Finish();
    writer_.reset();
}

void PdfPageWriter::DrawRule(PdfPage& page, const engine::Item& item) {
    page.FillRect(Points(item.box.left), Points(item.box.top), Points(item.box.width),
                  Points(item.box.height), PrintColour(item.style.ink));
}

void PdfPageWriter::DrawText(PdfPage& page, const engine::Item& item, std::string_view text) {
    if (text.empty()) return;
    PdfTextStyle style{.font = PrintFont(item.style),
                       .size = Points(item.style.size),
                       .colour = PrintColour(item.style.ink)};
    const double room = Points(item.box.width);
    double width = fonts_.Width(style.font, style.size, text);
    // A hair of tolerance: a box made as wide as its text holds it.
    constexpr double kHair = 0.01;
    if (width > room + kHair) {
        if (item.figure || item.kind == engine::ItemKind::kPageNumber) {
            style.stretch = std::floor(room / width * 10'000) / 100;
            width = room;
        } else {
            text = Ellipsize(fonts_, style.font, style.size, room, text, shortened_);
            width = fonts_.Width(style.font, style.size, text);
        }
    }
    page.Text(LeftOf(item, width), Baseline(item), style, text);
}

}  // namespace varnel::render
