#include "bench/floors.h"

#include <cairo-pdf.h>
#include <cairo.h>
#include <sqlite3.h>

#include <array>
#include <memory>
#include <stdexcept>
#include <string_view>

#include "render/byte_sink.h"
#include "render/fonts/font_set.h"
#include "render/pdf/pdf_writer.h"

namespace varnel::bench {

const char* const kJournalStatement =
    "SELECT GLDet.InGLDetId, GLDet.ExCurrencyId, GLDet.SeqNo, GLDet.DetAmnt, GLDet.ForeignAmnt, "
    "GLDet.DetDate, GLDet.DetDesc, GLDet.DetRef, GLDet.Source, GLDet.ExSrcKeyVal, GLDet.Remarks, "
    "GLDet.ExProjId, GLAcct.GLAcctId, GLAcct.Descr, ProjInfo.ProjId, WorldCurrency.InCurrencyId, "
    "WorldCurrency.CurrencyCode, WorldCurrency.CurrencyCode || ' - ' || WorldCurrency.Descr "
    "FROM (((GLDet GLDet LEFT OUTER JOIN GJTrxHdr GJTrxHdr ON GLDet.ExSrcKeyVal = "
    "GJTrxHdr.InTrxId) LEFT OUTER JOIN ProjInfo ProjInfo ON GLDet.ExProjId = ProjInfo.InProjId) "
    "LEFT OUTER JOIN GLAcct GLAcct ON GLDet.ExAcctId = GLAcct.InGLAcctId) LEFT JOIN WorldCurrency "
    "ON WorldCurrency.InCurrencyId = GLDet.ExCurrencyId WHERE GLDet.Source IN('GJ','BKT','BRC') "
    "AND GLDet.DetDate BETWEEN '1899-12-31' AND '9999-12-31' "
    "ORDER BY GLDet.DetDate, GLDet.SeqNo, GLDet.InGLDetId";

namespace {

constexpr int kLinesPerPage = 50;
constexpr int kCells = 7;
/// Sequence, date, description, account, amount, foreign amount, currency.
constexpr std::array<int, kCells> kCellColumns = {2, 5, 6, 13, 3, 4, 16};
constexpr std::array<double, kCells> kLefts = {25, 65, 120, 260, 400, 470, 540};
constexpr double kPageWidth = 612;
constexpr double kPageHeight = 792;

using Database = std::unique_ptr<sqlite3, decltype(&sqlite3_close)>;
using Statement = std::unique_ptr<sqlite3_stmt, decltype(&sqlite3_finalize)>;

Database Open(const std::string& company) {
    sqlite3* raw = nullptr;
    if (sqlite3_open_v2(company.c_str(), &raw, SQLITE_OPEN_READONLY, nullptr) != SQLITE_OK)
        throw std::runtime_error("cannot open " + company);
    return {raw, sqlite3_close};
}

Statement Prepare(sqlite3* database, const std::string& text) {
    sqlite3_stmt* raw = nullptr;
    if (sqlite3_prepare_v2(database, text.c_str(), -1, &raw, nullptr) != SQLITE_OK)
        throw std::runtime_error(sqlite3_errmsg(database));
    return {raw, sqlite3_finalize};
}

std::string_view CellText(sqlite3_stmt* row, int column) {
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(row, column));
    return text == nullptr ? std::string_view()
                           : std::string_view(
                                 text, static_cast<std::size_t>(sqlite3_column_bytes(row, column)));
}

template <class OnRow>
void ForEachRow(const std::string& company, const std::string& statement, OnRow on_row) {
    const auto database = Open(company);
    const auto rows = Prepare(database.get(), statement);
    while (sqlite3_step(rows.get()) == SQLITE_ROW) on_row(rows.get());
}

/// Something that depends on every byte of the cell.
std::int64_t Look(sqlite3_stmt* row, int column) {
    switch (sqlite3_column_type(row, column)) {
        case SQLITE_INTEGER:
            return sqlite3_column_int64(row, column);
        case SQLITE_FLOAT:
            return sqlite3_column_double(row, column) > 0 ? 1 : 0;
        default:
            return static_cast<std::int64_t>(CellText(row, column).size());
    }
}

}  // namespace

std::int64_t ReadRows(const std::string& company, const std::string& statement) {
    std::int64_t rows = 0;
    std::int64_t seen = 0;
    ForEachRow(company, statement, [&](sqlite3_stmt* row) {
        const int columns = sqlite3_column_count(row);
        for (int column = 0; column < columns; ++column) seen += Look(row, column);
        ++rows;
    });
    if (seen == 0) throw std::runtime_error("nothing to read in " + company);
    return rows;
}

std::string ReadCell(const std::string& company, const std::string& statement) {
    std::string cell;
    ForEachRow(company, statement, [&](sqlite3_stmt* row) {
        if (cell.empty()) cell = CellText(row, 0);
    });
    return cell;
}

void WriteJournalPages(const std::string& company, const std::string& file) {
    render::FileSink sink(file);
    render::FontSet fonts;
    render::PdfWriter writer(sink, fonts, {});
    int line = kLinesPerPage;
    bool page_open = false;
    render::PdfPage* page = nullptr;
    ForEachRow(company, kJournalStatement, [&](sqlite3_stmt* row) {
        if (line == kLinesPerPage) {
            if (page_open) writer.EndPage();
            page = &writer.BeginPage(kPageWidth, kPageHeight);
            page_open = true;
            line = 0;
        }
        const double y = 60 + 13.5 * line++;
        for (int cell = 0; cell < kCells; ++cell)
            page->Text(kLefts[cell], y, {.size = 8.5}, CellText(row, kCellColumns[cell]));
    });
    if (page_open) writer.EndPage();
    writer.Finish();
    sink.Close();
}

void WriteJournalPagesWithCairo(const std::string& company, const std::string& file) {
    cairo_surface_t* surface = cairo_pdf_surface_create(file.c_str(), kPageWidth, kPageHeight);
    cairo_t* drawing = cairo_create(surface);
    cairo_select_font_face(drawing, "Open Sans", CAIRO_FONT_SLANT_NORMAL, CAIRO_FONT_WEIGHT_NORMAL);
    cairo_set_font_size(drawing, 8.5);
    int line = 0;
    ForEachRow(company, kJournalStatement, [&](sqlite3_stmt* row) {
        const double y = 60 + 13.5 * line++;
        for (int cell = 0; cell < kCells; ++cell) {
            cairo_move_to(drawing, kLefts[cell], y);
            cairo_show_text(drawing, std::string(CellText(row, kCellColumns[cell])).c_str());
        }
        if (line < kLinesPerPage) return;
        cairo_show_page(drawing);
        line = 0;
    });
    cairo_destroy(drawing);
    cairo_surface_finish(surface);
    cairo_surface_destroy(surface);
}

}  // namespace varnel::bench
