#pragma once

#include <cstdint>
#include <memory>

#include "accounts/cgl_acct.h"
#include "accounts/collection_enumerator.h"
#include "accounts/keyed_collection.h"
#include "host/application.h"
#include "host/data_access.h"

namespace varnel {

/// The chart of accounts as objects, "Varnel.CGLAccts": loaded in one pass, in the order of the
/// database, each account under the decimal text of its internal id.
///
///     CGLAccts accounts;
///     accounts.Init(application, 0);
///     accounts.Item("1043")->Descr();             // By internal id.
///     accounts.Item(1)->Descr();                  // The first account loaded.
///     for (const auto& account : accounts) ...
///
/// Late-bound, Init, Add, Item, Remove and NewEnum are methods, Count, GLAcctRs and NewEnum
/// properties. What fails is raised again with the member's name (form B).
class CGLAccts final : public Object {
  public:
    CGLAccts();

    std::string_view ObjectName() const override { return "CGLAccts"; }
    Variant Get(std::string_view name) override;
    Variant Call(std::string_view name, std::span<const Variant> arguments) override;

    /// Keeps the application and loads as `Add` does.
    void Init(std::shared_ptr<Application> main_app, std::int32_t ex_currency_id);
    /// Loads the accounts of that currency, or all for 0, behind those that are held: an account
    /// that comes again raises error 457. A failure stops the load; accounts added before it stay.
    /// Error 91 before `Init`. The result is an empty reference.
    ObjectRef Add(std::int32_t ex_currency_id);

    /// By position, counted from 1, or by key, which is a text. Error 5 for an unknown key, 9 for a
    /// position that there is not.
    std::shared_ptr<CGLAcct> Item(const Variant& index_key) const;
    void Remove(const Variant& index_key);
    std::int32_t Count() const { return static_cast<std::int32_t>(accounts_->All().size()); }

    /// Iterates in load order; late-bound hosts call its `Next` until that gives an empty
    /// reference.
    std::shared_ptr<CollectionEnumerator<CGLAcct>> NewEnum() const;
    auto begin() const { return accounts_->All().begin(); }
    auto end() const { return accounts_->All().end(); }

    /// What the last load read, back on its first row; empty before the first load.
    std::shared_ptr<Recordset> GLAcctRs() const { return gl_acct_rs_; }

  private:
    std::shared_ptr<KeyedCollection<CGLAcct>> accounts_;
    std::shared_ptr<Application> main_app_;
    std::shared_ptr<Recordset> gl_acct_rs_;
};

}  // namespace varnel
