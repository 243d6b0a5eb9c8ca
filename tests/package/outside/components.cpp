#include <string_view>

#include "drivers/memory_recordset.h"
#include "drivers/sqlite/sqlite_database.h"
#include "host/error.h"
#include "render/pages/pdf_pages.h"

namespace {

bool DriversWork() {
    const varnel::drivers::MemoryRecordset rows({"Total"}, {{varnel::Currency::Parse("0.3000")}});
    varnel::drivers::SqliteConnections connections;
    try {
        connections.At("/no-such-folder/ledger.db");
    } catch (const varnel::Error& error) {
        return !rows.AtEnd() && error.Number() == varnel::error_number::kDatabase;
    }
    return false;
}

bool RenderersWork() {
    varnel::render::MemorySink sink;
    varnel::render::FontSet fonts;
    varnel::render::PdfPageWriter pages(sink, fonts);
    pages.Begin({.title = "Blank"}, 0);
    pages.End();
    return std::string_view(sink.Bytes()).substr(0, 5) == "%PDF-";
}

}  // namespace

int main() { return DriversWork() && RenderersWork() ? 0 : 1; }
