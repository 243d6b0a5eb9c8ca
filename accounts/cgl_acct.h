#pragma once

#include <cstdint>
#include <string>

#include "host/object.h"
#include "host/variant.h"

namespace varnel {

/// One general-ledger account, "Varnel.CGLAcct": a row of the table GLAcct, each property named
/// after its column. A new one holds zeros, empty texts, False and an empty note.
///
/// All properties are late-bound too, by their names. A late-bound value of the wrong type raises
/// its error again with the property's name (form B); the functions here cannot fail.
class CGLAcct final : public Object {
  public:
    std::string_view ObjectName() const override { return "CGLAcct"; }
    Variant Get(std::string_view name) override;
    void Put(std::string_view name, const Variant& value) override;

    /// Currency of the account; 0 for none.
    std::int32_t ExCurrencyId() const { return ex_currency_id_; }
    void SetExCurrencyId(std::int32_t id) { ex_currency_id_ = id; }

    const std::string& GIFIAcctId() const { return gifi_acct_id_; }
    void SetGIFIAcctId(std::string id) { gifi_acct_id_ = std::move(id); }

    /// Any value, or a reference to an object.
    const Variant& Note() const { return note_; }
    void SetNote(Variant note) { note_ = std::move(note); }

    /// Always False, whatever is set: kept for hosts that name it.
    bool BqAcct() const { return false; }
    void SetBqAcct(bool) {}

    /// What the account is among headings, subtotals and posting accounts.
    std::int32_t GroupType() const { return group_type_; }
    void SetGroupType(std::int32_t type) { group_type_ = type; }

    bool ChqAcct() const { return chq_acct_; }
    void SetChqAcct(bool is_cheque_account) { chq_acct_ = is_cheque_account; }

    bool InActive() const { return in_active_; }
    void SetInActive(bool is_inactive) { in_active_ = is_inactive; }

    /// Always 0, whatever is set: read the column GLAcct.AcctType for the type of an account.
    std::int32_t AcctType() const { return 0; }
    void SetAcctType(std::int32_t) {}

    const std::string& Descr() const { return descr_; }
    void SetDescr(std::string descr) { descr_ = std::move(descr); }

    /// The number that users know the account by.
    const std::string& GLAcctId() const { return gl_acct_id_; }
    void SetGLAcctId(std::string id) { gl_acct_id_ = std::move(id); }

    /// The internal id that ledger lines refer to.
    std::int32_t InGLAcctId() const { return in_gl_acct_id_; }
    void SetInGLAcctId(std::int32_t id) { in_gl_acct_id_ = id; }

  private:
    std::int32_t in_gl_acct_id_ = 0;
    std::int32_t group_type_ = 0;
    std::int32_t ex_currency_id_ = 0;
    bool in_active_ = false;
    bool chq_acct_ = false;
    std::string gl_acct_id_;
    std::string descr_;
    std::string gifi_acct_id_;
    Variant note_;
};

}  // namespace varnel
