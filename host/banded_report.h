#pragma once

#include <memory>
#include <string>

#include "host/data_access.h"
#include "host/surface.h"

namespace varnel {

/// Where a report's rows come from and which one handlers see: a row set, unbound fields, or both.
///
/// The engine shows handlers one row at a time. In a group footer that is the last row of the group
/// it closes, although the feed may have moved on; after the last row and in the report header and
/// footer of an empty report there is none (`EndOfData`).
class ReportData {
  public:
    /// The report's rows for this run; replaces those of an earlier one.
    void Attach(std::shared_ptr<Recordset> rows) { rows_ = std::move(rows); }
    const std::shared_ptr<Recordset>& Rows() const { return rows_; }

    /// Adds an unbound field. It stays over later runs; its value is cleared at the start of each.
    Column AddField(std::string name);
    void SetField(Column field, const Variant& value) { fields_.Set(field, value); }
    /// To what stands in a row, as it is.
    void SetField(Column field, const Row& row, Column cell) { fields_.Copy(field, row, cell); }
    const Columns& FieldNames() const { return field_names_; }

    bool EndOfData() const { return row_ == nullptr; }
    /// The current row. Error 3021 at the end of data: ask EndOfData first where there may be none.
    const Row& Current() const {
        if (row_ == nullptr) RaiseNoRow();
        return *row_;
    }
    /// The unbound fields as they were with the current row; the same as Current() for a report
    /// without a row set.
    const Row& CurrentFields() const { return *shown_fields_; }

    // For the engine.
    /// A run is under way. There is one surface and one row to show: a second run has to wait.
    bool Running() const { return running_; }
    void SetRunning(bool running) { running_ = running; }
    /// Drops the rows of the last run and clears the fields.
    void Clear();
    void Show(const Row* row, const Row* fields = nullptr) {
        row_ = row;
        shown_fields_ = fields;
    }
    const Row& Fields() const { return fields_; }
    /// Copies the fields' values as they are now.
    void CopyFields(Row& into) const {
        if (field_names_.Size() != 0) into = fields_;
    }

  private:
    [[noreturn]] static void RaiseNoRow();

    std::shared_ptr<Recordset> rows_;
    Columns field_names_;
    Row fields_;
    const Row* row_ = nullptr;
    const Row* shown_fields_ = nullptr;
    bool running_ = false;
};

/// A report as the engine runs it: a surface, rows, and events. Section format events are the
/// sections' handlers.
///
/// An event must not throw: it catches, tells its host and returns, and the run goes on.
class BandedReport : public Object {
  public:
    virtual Surface& GetSurface() = 0;
    virtual ReportData& Data() = 0;

    /// Once per run, first of all.
    virtual void ActiveReport_Initialize() {}
    /// The report builds its query and attaches its rows.
    virtual void ActiveReport_ReportStart() {}
    /// Unbound fields are added here.
    virtual void ActiveReport_DataInitialize() {}
    /// Before each row. `end_of_data` comes in as what the attached row set says (true when there
    /// is none); a report that feeds its rows itself sets its fields and clears the flag, or leaves
    /// it set when it has no more.
    virtual void ActiveReport_FetchData(bool& end_of_data) { (void)end_of_data; }
    /// The run is over; the report releases what it took for it.
    virtual void ActiveReport_Terminate() {}
};

}  // namespace varnel
