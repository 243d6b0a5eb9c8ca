#pragma once

#include <memory>

#include "engine/record.h"
#include "host/banded_report.h"

namespace varnel::engine {

/// The records of one run, forward only: the current one and, as a value, the one before it.
class Feed {
  public:
    /// `keep_previous` is for reports with groups: without, rows are never copied.
    Feed(BandedReport& report, bool keep_previous);

    /// Moves on and raises the fetch event. False when there is no further record.
    bool Fetch();
    const Record& Current() const { return current_; }
    const Record& Previous() const { return previous_; }

    /// Lets handlers see this record; one that is not present is the end of the data.
    void Show(const Record& record) { data_.Show(record.row, record.fields); }

  private:
    void KeepCurrent();
    void MoveRows();
    const Row* RowOfRecord();

    BandedReport& report_;
    ReportData& data_;
    std::shared_ptr<Recordset> rows_;
    bool keep_previous_;
    bool started_ = false;
    Record current_;
    Record previous_;
    Row kept_row_;
    Row fields_, kept_fields_;
    Row nulls_;  // Stands for the row when unbound fields go on after the row set's end.
};

}  // namespace varnel::engine
