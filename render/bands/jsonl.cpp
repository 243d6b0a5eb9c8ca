#include "render/bands/jsonl.h"

#include <charconv>

#include "render/bands/json_escape.h"

namespace varnel::render {

namespace {

void AppendInteger(std::string& out, std::int32_t number) {
    char digits[16];
    out.append(digits, std::to_chars(digits, digits + sizeof digits, number).ptr);
}

bool HasValue(const Control& control) {
    return !std::holds_alternative<std::monostate>(control.Value());
}

bool IsWritten(const Control& control) {
    const ControlKind kind = control.Design().kind;
    const bool has_text =
        kind == ControlKind::kText || kind == ControlKind::kLabel || kind == ControlKind::kBlock;
    return has_text && control.Visible() &&
           (!control.Text().empty() || HasValue(control) || !control.Tag().empty());
}

void AppendValue(std::string& out, const ControlValue& value) {
    if (const auto* count = std::get_if<std::int32_t>(&value)) return AppendInteger(out, *count);
    out += '"';
    if (const auto* amount = std::get_if<Currency>(&value)) amount->AppendText(out);
    if (const auto* date = std::get_if<Date>(&value)) date->AppendIso(out);
    if (const auto* rate = std::get_if<Rate>(&value)) rate->AppendText(out);
    out += '"';
}

void AppendControl(std::string& out, const Control& control) {
    AppendJsonString(out, control.Design().name);
    out += ":{\"text\":";
    AppendJsonString(out, control.Text());
    if (HasValue(control)) {
        out += ",\"value\":";
        AppendValue(out, control.Value());
    }
    if (!control.Tag().empty()) {
        out += ",\"key\":";
        AppendJsonString(out, control.Tag());
    }
    out += '}';
}

}  // namespace

void JsonLinesWriter::Write(const Section& section, const engine::BandMark& mark) {
    if (!mark.printed) return;
    std::string& out = output_.Bytes();
    out += "{\"section\":";
    AppendJsonString(out, section.Name());
    if (mark.depth > 0) {
        out += ",\"depth\":";
        AppendInteger(out, mark.depth);
    }
    out += ",\"controls\":{";
    bool first = true;
    for (const Control& control : section.Controls()) {
        if (!IsWritten(control)) continue;
        if (!first) out += ',';
        first = false;
        AppendControl(out, control);
    }
    out += "}}\n";
    output_.EndRecord();
}

}  // namespace varnel::render
