#include "reports/journal/general_journal.h"

#include "reports/journal/entry_layout.h"

namespace varnel::reports {

namespace {

const Layout& JournalLayout() {
    static const Layout layout = EntryLayout("dsrGeneralJournal");
    return layout;
}

}  // namespace

dsrGeneralJournal::dsrGeneralJournal() : EntryReport(JournalLayout(), 6173) {}

std::string dsrGeneralJournal::Condition() {
    return "WHERE GLDet.Source IN('GJ','BKT','BRC') "
           "AND GLDet.DetDate BETWEEN ? AND ? ";
}

std::string_view dsrGeneralJournal::DefaultOrder() const {
    return " ORDER BY GLDet.DetDate, GLDet.SeqNo, GLDet.InGLDetId";
}

}  // namespace varnel::reports
