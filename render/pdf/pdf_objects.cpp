#include "render/pdf/pdf_objects.h"

#include <cstring>
#include <stdexcept>

#include "render/pdf/pdf_escape.h"
#include "render/pdf/pdf_number.h"

namespace varnel::render {

namespace {

// The second line tells transfer programs that the file is binary.
constexpr std::string_view kHeader = "%PDF-1.7\n%\xE2\xE3\xCF\xD3\n";

void AppendHex64(std::string& out, std::uint64_t value) {
    for (int shift = 48; shift >= 0; shift -= 16) {
        AppendHex16(out, static_cast<unsigned>(value >> shift & 0xFFFF));
    }
}

}  // namespace

void AppendReference(std::string& out, ObjectId id) {
    AppendInteger(out, id);
    out += " 0 R";
}

PdfObjects::PdfObjects(ByteSink& sink, int compression_level)
    : sink_(sink), deflater_(compression_level) {
    Put(kHeader);
}

ObjectId PdfObjects::Reserve() {
    offsets_.push_back(0);
    return static_cast<ObjectId>(offsets_.size());
}

void PdfObjects::WriteObject(ObjectId id, std::string_view body) {
    Begin(id);
    Put(body);
    Put("\nendobj\n");
}

void PdfObjects::WriteStream(ObjectId id, std::string_view entries, std::string_view content) {
    PutStream(id, entries, "/Filter/FlateDecode", deflater_.Compress(content));
}

void PdfObjects::WritePlainStream(ObjectId id, std::string_view entries, std::string_view content) {
    PutStream(id, entries, {}, content);
}

void PdfObjects::PutStream(ObjectId id, std::string_view entries, std::string_view filter,
                           std::string_view data) {
    Begin(id);
    Put("<<");
    Put(entries);
    Put(filter);
    Put("/Length ");
    PutNumber(data.size());
    Put(">>\nstream\n");
    Put(data);
    Put("\nendstream\nendobj\n");
}

void PdfObjects::Begin(ObjectId id) {
    if (id == 0 || id > offsets_.size() || offsets_[id - 1] != 0) {
        throw std::logic_error("PDF object " + std::to_string(id) +
                               " is not reserved or already written");
    }
    offsets_[id - 1] = position_;
    PutNumber(id);
    Put(" 0 obj\n");
}

void PdfObjects::Put(std::string_view bytes) {
    sink_.Write(bytes);
    position_ += bytes.size();
    MixIntoFingerprint(bytes);
}

void PdfObjects::PutNumber(std::uint64_t number) {
    char digits[kLongestNumber];
    const char* end = WriteInteger(digits, static_cast<std::int64_t>(number));
    Put({digits, static_cast<std::size_t>(end - digits)});
}

void PdfObjects::Finish(ObjectId catalog, ObjectId info) {
    const std::uint64_t table = position_;
    PutOffsets();
    PutTrailer(catalog, info, table);
}

void PdfObjects::PutOffsets() {
    constexpr std::uint64_t kLargestOffset = 9'999'999'999;  // ten digits in the table
    if (position_ > kLargestOffset) throw std::runtime_error("a PDF file cannot exceed 10 GB");
    Put("xref\n0 ");
    PutNumber(offsets_.size() + 1);
    Put("\n0000000000 65535 f \n");
    char line[] = "0000000000 00000 n \n";
    for (std::size_t i = 0; i < offsets_.size(); ++i) {
        if (offsets_[i] == 0) {
            throw std::logic_error("PDF object " + std::to_string(i + 1) + " was never written");
        }
        std::uint64_t rest = offsets_[i];
        for (int digit = 9; digit >= 0; --digit, rest /= 10) {
            line[digit] = static_cast<char>('0' + rest % 10);
        }
        Put({line, sizeof line - 1});
    }
}

void PdfObjects::PutTrailer(ObjectId catalog, ObjectId info, std::uint64_t table) {
    std::string id;
    AppendHex64(id, fingerprint_[0]);
    AppendHex64(id, fingerprint_[1]);
    std::string trailer = "trailer\n<</Size ";
    AppendInteger(trailer, static_cast<std::int64_t>(offsets_.size() + 1));
    trailer += "/Root ";
    AppendReference(trailer, catalog);
    trailer += "/Info ";
    AppendReference(trailer, info);
    trailer += "/ID[<" + id + "><" + id + ">]>>\nstartxref\n";
    AppendInteger(trailer, static_cast<std::int64_t>(table));
    trailer += "\n%%EOF\n";
    Put(trailer);
}

// Two 64-bit lanes of multiply and fold: quick, and good enough to tell documents apart. The
// document has no other identity, as the same input gives the same bytes.
void PdfObjects::MixIntoFingerprint(std::string_view bytes) {
    constexpr std::uint64_t kOdd[2] = {0xFF51AFD7ED558CCDu, 0xC4CEB9FE1A85EC53u};
    std::uint64_t first = fingerprint_[0];
    std::uint64_t second = fingerprint_[1] ^ bytes.size();
    while (!bytes.empty()) {
        std::uint64_t word = 0;
        const std::size_t count = bytes.size() < sizeof word ? bytes.size() : sizeof word;
        std::memcpy(&word, bytes.data(), count);
        first = (first ^ word) * kOdd[0];
        first ^= first >> 32;
        second = (second ^ first) * kOdd[1];
        second ^= second >> 29;
        bytes.remove_prefix(count);
    }
    fingerprint_[0] = first;
    fingerprint_[1] = second;
}

}  // namespace varnel::render
