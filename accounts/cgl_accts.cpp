#include "accounts/cgl_accts.h"

#include "framework/procedure.h"
#include "framework/query_runner.h"
#include "host/member_table.h"

namespace varnel {

namespace {

using framework::GuardFormB;
using framework::Mark;
using Arguments = std::span<const Variant>;

constexpr std::string_view kClass = "CGLAccts";

std::shared_ptr<Recordset> QueryAccounts(Application& application, std::int32_t ex_currency_id) {
    if (ex_currency_id == 0) return framework::RunQuery(application, "Select * from GLAcct", {});
    const Variant parameters[] = {ex_currency_id};
    return framework::RunQuery(application, "Select * from GLAcct where ExCurrencyId = ? ",
                               parameters);
}

struct AccountColumns {
    explicit AccountColumns(const Columns& columns)
        : in_gl_acct_id(columns.At("InGLAcctId")),
          gl_acct_id(columns.At("GLAcctId")),
          descr(columns.At("Descr")),
          acct_type(columns.At("AcctType")),
          in_active(columns.At("InActive")),
          chq_acct(columns.At("ChqAcct")),
          group_type(columns.At("GroupType")),
          note(columns.At("Note")),
          gifi_acct_id(columns.At("GIFIAcctId")),
          ex_currency_id(columns.At("ExCurrencyId")) {}

    Column in_gl_acct_id, gl_acct_id, descr, acct_type, in_active, chq_acct, group_type, note,
        gifi_acct_id, ex_currency_id;
};

// Databases may keep account numbers as numbers.
std::string TextOf(const Row& row, Column column) {
    std::string text;
    row.AppendText(column, text);
    return text;
}

std::shared_ptr<CGLAcct> ReadAccount(const Row& row, const AccountColumns& columns) {
    auto account = std::make_shared<CGLAcct>();
    Mark(), account->SetInGLAcctId(row.Integer(columns.in_gl_acct_id));
    Mark(), account->SetGLAcctId(TextOf(row, columns.gl_acct_id));
    Mark(), account->SetDescr(TextOf(row, columns.descr));
    Mark(), account->SetAcctType(row.Integer(columns.acct_type));
    Mark(), account->SetInActive(row.Truth(columns.in_active));
    Mark(), account->SetChqAcct(row.Truth(columns.chq_acct));
    Mark(), account->SetGroupType(row.Integer(columns.group_type));
    Mark(), account->SetNote(TextOf(row, columns.note));
    const bool has_gifi = !row.IsNull(columns.gifi_acct_id);
    Mark(), account->SetGIFIAcctId(has_gifi ? TextOf(row, columns.gifi_acct_id) : "0");
    const Variant currency = (Mark(), row.Amount(columns.ex_currency_id));
    Mark(), account->SetExCurrencyId(currency.ToInteger32());
    return account;
}

void Load(Recordset& rows, KeyedCollection<CGLAcct>& accounts) {
    const AccountColumns columns((Mark(), rows.GetColumns()));
    while (!(Mark(), rows.AtEnd())) {
        const Row& row = (Mark(), rows.Current());
        auto account = ReadAccount(row, columns);
        const bool has_key = !row.IsNull(columns.in_gl_acct_id);
        const std::string key = has_key ? std::to_string(account->InGLAcctId()) : "";
        Mark(), rows.MoveNext();
        Mark(), accounts.Add(std::move(account), key);
    }
    Mark(), rows.MoveFirst();
}

// Arguments that are missing or of another type are failures of the method that they are for.
template <class Read>
auto ReadArgument(std::string_view method, Arguments arguments, std::size_t index, Read read) {
    return GuardFormB(kClass, method, [&] { return read(ArgumentAt(arguments, index)); });
}

std::int32_t AsInteger(const Variant& value) { return value.ToInteger32(); }
const Variant* AsItIs(const Variant& value) { return &value; }

Variant CallInit(CGLAccts& accounts, Arguments a) {
    auto application = ReadArgument("Init", a, 0, ObjectAs<Application>);
    accounts.Init(std::move(application), ReadArgument("Init", a, 1, AsInteger));
    return {};
}

Variant CallAdd(CGLAccts& accounts, Arguments a) {
    return accounts.Add(ReadArgument("Add", a, 0, AsInteger));
}

Variant CallItem(CGLAccts& accounts, Arguments a) {
    return ObjectRef(accounts.Item(*ReadArgument("Item", a, 0, AsItIs)));
}

Variant CallRemove(CGLAccts& accounts, Arguments a) {
    accounts.Remove(*ReadArgument("Remove", a, 0, AsItIs));
    return {};
}

Variant NewEnum(CGLAccts& accounts) { return ObjectRef(accounts.NewEnum()); }

constexpr Member<CGLAccts> kMembers[] = {
    {"Init", nullptr, nullptr, CallInit},
    {"Add", nullptr, nullptr, CallAdd},
    {"Item", nullptr, nullptr, CallItem},
    {"Remove", nullptr, nullptr, CallRemove},
    {"Count", [](CGLAccts& accounts) { return Variant(accounts.Count()); }},
    {"NewEnum", NewEnum, nullptr, [](CGLAccts& accounts, Arguments) { return NewEnum(accounts); }},
    {"GLAcctRs", [](CGLAccts& accounts) { return Variant(ObjectRef(accounts.GLAcctRs())); }},
};

}  // namespace

CGLAccts::CGLAccts() {
    GuardFormB(kClass, "Class_Initialize",
               [&] { accounts_ = std::make_shared<KeyedCollection<CGLAcct>>(); });
}

Variant CGLAccts::Get(std::string_view name) { return GetMember<CGLAccts>(kMembers, *this, name); }

Variant CGLAccts::Call(std::string_view name, std::span<const Variant> arguments) {
    return CallMember<CGLAccts>(kMembers, *this, name, arguments);
}

void CGLAccts::Init(std::shared_ptr<Application> main_app, std::int32_t ex_currency_id) {
    GuardFormB(kClass, "Init", [&] {
        main_app_ = std::move(main_app);
        Mark(), Add(ex_currency_id);
    });
}

ObjectRef CGLAccts::Add(std::int32_t ex_currency_id) {
    return GuardFormB(kClass, "Add", [&] {
        if (main_app_ == nullptr)
            Raise(error_number::kObjectNotSet, "Varnel.CGLAccts",
                  "There is no application to load accounts from; give one to Init first");
        Mark(), gl_acct_rs_ = QueryAccounts(*main_app_, ex_currency_id);
        if (!(Mark(), gl_acct_rs_->AtEnd())) Load(*gl_acct_rs_, *accounts_);
        return ObjectRef();
    });
}

std::shared_ptr<CGLAcct> CGLAccts::Item(const Variant& index_key) const {
    return GuardFormB(kClass, "Item", [&] { return (Mark(), accounts_->At(index_key)); });
}

void CGLAccts::Remove(const Variant& index_key) {
    GuardFormB(kClass, "Remove", [&] { Mark(), accounts_->Remove(index_key); });
}

std::shared_ptr<CollectionEnumerator<CGLAcct>> CGLAccts::NewEnum() const {
    return GuardFormB(kClass, "NewEnum",
                      [&] { return std::make_shared<CollectionEnumerator<CGLAcct>>(accounts_); });
}

}  // namespace varnel
