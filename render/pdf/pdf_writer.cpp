#include "render/pdf/pdf_writer.h"

#include <stdexcept>
#include <utility>

#include "render/pdf/pdf_escape.h"
#include "render/pdf/pdf_number.h"

namespace varnel::render {

namespace {

void Require(bool condition, const char* message) {
    if (!condition) throw std::logic_error(message);
}

bool IsPageLength(double points) {
    constexpr double kLongest = 14400;
    return points >= 1 && points <= kLongest;
}

}  // namespace

PdfWriter::PdfWriter(ByteSink& sink, FontSet& fonts, PdfInfo info, PdfOptions options)
    : info_(std::move(info)),
      info_dictionary_(InfoDictionary(info_)),
      objects_(sink, options.compression_level),
      tree_(objects_),
      used_fonts_(fonts),
      page_(fonts, used_fonts_),
      catalog_id_(objects_.Reserve()),
      resources_id_(objects_.Reserve()),
      info_id_(objects_.Reserve()) {}

PdfPage& PdfWriter::BeginPage(double width, double height) {
    Require(!finished_, "the PDF document is finished: no page can be added");
    Require(page_id_ == 0, "a PDF page is open: call EndPage before BeginPage");
    if (!IsPageLength(width) || !IsPageLength(height)) {
        throw std::invalid_argument("a PDF page must measure 1 to 14400 points each way");
    }
    page_id_ = objects_.Reserve();
    page_.Begin(width, height);
    return page_;
}

void PdfWriter::EndPage() {
    Require(page_id_ != 0, "no PDF page is open: call BeginPage before EndPage");
    const ObjectId content = objects_.Reserve();
    objects_.WriteStream(content, {}, page_.End());
    WritePage(content);
    page_id_ = 0;
}

void PdfWriter::WritePage(ObjectId content) {
    std::string body = "<</Type/Page/Parent ";
    AppendReference(body, tree_.AddPage(page_id_));
    body += "/MediaBox[0 0 ";
    AppendDecimal(body, page_.Width());
    body += ' ';
    AppendDecimal(body, page_.Height());
    body += "]/Resources ";
    AppendReference(body, resources_id_);
    body += "/Contents ";
    AppendReference(body, content);
    body += page_.entries_;
    body += ">>";
    objects_.WriteObject(page_id_, body);
}

void PdfWriter::Finish() {
    Require(!finished_, "the PDF document is already finished");
    Require(page_id_ == 0, "a PDF page is open: call EndPage before Finish");
    Require(tree_.PageCount() > 0, "a PDF document needs at least one page");
    finished_ = true;
    WriteResources();
    WriteCatalog(tree_.Finish());
    objects_.WriteObject(info_id_, info_dictionary_);
    objects_.Finish(catalog_id_, info_id_);
}

void PdfWriter::WriteResources() {
    objects_.WriteObject(resources_id_, "<</Font" + used_fonts_.Embed(objects_) + ">>");
}

ObjectId PdfWriter::WriteMetadata() {
    const ObjectId id = objects_.Reserve();
    objects_.WritePlainStream(id, "/Type/Metadata/Subtype/XML", XmpPacket(info_));
    return id;
}

void PdfWriter::WriteCatalog(ObjectId pages) {
    std::string body = "<</Type/Catalog/Pages ";
    AppendReference(body, pages);
    body += "/Metadata ";
    AppendReference(body, WriteMetadata());
    if (!info_.language.empty()) {
        body += "/Lang";
        AppendPdfString(body, info_.language);
    }
    if (!info_.title.empty()) body += "/ViewerPreferences<</DisplayDocTitle true>>";
    body += catalog_entries_;
    body += ">>";
    objects_.WriteObject(catalog_id_, body);
}

}  // namespace varnel::render
