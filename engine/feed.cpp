#include "engine/feed.h"

#include <utility>

namespace varnel::engine {

Feed::Feed(BandedReport& report, bool keep_previous)
    : report_(report), data_(report.Data()), rows_(data_.Rows()), keep_previous_(keep_previous) {}

bool Feed::Fetch() {
    if (keep_previous_) KeepCurrent();
    MoveRows();
    bool end_of_data = rows_ == nullptr || rows_->AtEnd();
    Show({end_of_data ? nullptr : &rows_->Current(), &data_.Fields()});
    report_.ActiveReport_FetchData(end_of_data);
    current_ = {};
    if (!end_of_data) {
        data_.CopyFields(fields_);
        current_ = {RowOfRecord(), &fields_};
    }
    Show(current_);
    return !end_of_data;
}

void Feed::KeepCurrent() {
    if (!current_.Present()) return;
    const bool own_row = current_.row != &fields_;
    if (own_row) kept_row_ = *current_.row;
    if (fields_.Size() != 0) std::swap(fields_, kept_fields_);
    previous_ = {own_row ? &kept_row_ : &kept_fields_, &kept_fields_};
}

void Feed::MoveRows() {
    if (rows_ != nullptr && started_ && !rows_->AtEnd()) rows_->MoveNext();
    started_ = true;
}

const Row* Feed::RowOfRecord() {
    if (rows_ == nullptr) return &fields_;
    if (!rows_->AtEnd()) return &rows_->Current();
    if (nulls_.Size() == 0)
        for (std::size_t i = 0; i < rows_->GetColumns().Size(); ++i) nulls_.AddNull();
    return &nulls_;
}

}  // namespace varnel::engine
