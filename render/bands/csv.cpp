#include "render/bands/csv.h"

#include <algorithm>
#include <charconv>
#include <stdexcept>

#include "render/bands/csv_quote.h"

namespace varnel::render {

namespace {

constexpr int kLeastDecimals = 2;

bool IsColumn(const ControlLayout& control) { return !control.column.empty(); }

bool NamesColumns(const SectionLayout& section) {
    return std::ranges::any_of(section.controls, IsColumn);
}

/// The detail, or the innermost group's footer when that alone names columns.
const SectionLayout* Recorded(const Layout& layout) {
    const auto find = [&](SectionKind kind) {
        return std::ranges::find(layout.sections, kind, &SectionLayout::kind);
    };
    const auto detail = find(SectionKind::kDetail);
    const auto footer = find(SectionKind::kGroupFooter);
    const auto end = layout.sections.end();
    if (detail != end && NamesColumns(*detail)) return &*detail;
    if (footer != end && NamesColumns(*footer)) return &*footer;
    return detail == end ? nullptr : &*detail;
}

void AppendValue(std::string& out, const Control& control) {
    const ControlValue& value = control.Value();
    if (const auto* amount = std::get_if<Currency>(&value)) {
        amount->AppendText(out, kLeastDecimals);
    } else if (const auto* date = std::get_if<Date>(&value)) {
        date->AppendIso(out);
    } else if (const auto* rate = std::get_if<Rate>(&value)) {
        rate->AppendText(out);
    } else if (const auto* count = std::get_if<std::int32_t>(&value)) {
        char digits[16];
        out.append(digits, std::to_chars(digits, digits + sizeof digits, *count).ptr);
    } else {
        AppendCsvField(out, control.Text());
    }
}

/// Every field is followed by a comma, so that levels can be put one after the other.
void AppendFields(std::string& out, const Section& section) {
    for (const Control& control : section.Controls()) {
        if (!IsColumn(control.Design())) continue;
        if (control.Visible()) AppendValue(out, control);
        out += ',';
    }
}

}  // namespace

void CsvWriter::Begin(const engine::DocumentInfo&, const Surface& surface) {
    ReadLayout(surface.Design());
    WriteHeaderLine(surface.Design());
}

void CsvWriter::ReadLayout(const Layout& layout) {
    groups_.clear();
    recorded_ = Recorded(layout);
    for (const SectionLayout& section : layout.sections) {
        if (section.kind != SectionKind::kGroupHeader) continue;
        const auto count = std::ranges::count_if(section.controls, IsColumn);
        const auto columns = static_cast<std::size_t>(count);
        groups_.push_back({.columns = columns, .fields = std::string(columns, ',')});
    }
}

void CsvWriter::WriteHeaderLine(const Layout& layout) {
    std::string& out = output_.Bytes();
    const std::size_t start = out.size();
    for (const SectionLayout& section : layout.sections) {
        if (section.kind != SectionKind::kGroupHeader && &section != recorded_) continue;
        for (const ControlLayout& control : section.controls) {
            if (!IsColumn(control)) continue;
            AppendCsvField(out, control.column);
            out += ',';
        }
    }
    if (out.size() == start)
        throw std::invalid_argument("The layout " + std::string(layout.name) +
                                    " names no columns, so there is nothing to write as CSV; "
                                    "choose another format");
    EndLine(start);
}

void CsvWriter::Write(const Section& section, const engine::BandMark& mark) {
    if (mark.depth > 0) return;
    if (&section.Design() == recorded_ && mark.printed) WriteRecord(section);
    if (section.Kind() == SectionKind::kGroupHeader) OpenGroup(section, mark);
}

// Every group begins with its header, so that nothing is left of the one before.
void CsvWriter::OpenGroup(const Section& header, const engine::BandMark& mark) {
    Group& group = groups_[static_cast<std::size_t>(mark.level)];
    if (!mark.printed) {
        group.fields.assign(group.columns, ',');
        return;
    }
    group.fields.clear();
    AppendFields(group.fields, header);
}

void CsvWriter::WriteRecord(const Section& section) {
    std::string& out = output_.Bytes();
    const std::size_t start = out.size();
    for (const Group& group : groups_) out += group.fields;
    AppendFields(out, section);
    EndLine(start);
}

void CsvWriter::EndLine(std::size_t line_start) {
    std::string& out = output_.Bytes();
    out.pop_back();
    // A record of one empty field would be an empty line, which readers skip.
    if (out.size() == line_start) out += "\"\"";
    out += "\r\n";
    output_.EndRecord();
}

}  // namespace varnel::render
