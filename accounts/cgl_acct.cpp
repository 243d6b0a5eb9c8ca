#include "accounts/cgl_acct.h"

#include "framework/procedure.h"
#include "host/member_table.h"

namespace varnel {

namespace {

template <class T>
using Let = void (CGLAcct::*)(T);

// The reading that the type of a property asks for.
void Assign(CGLAcct& account, Let<std::int32_t> let, const Variant& value) {
    (account.*let)(value.ToInteger32());
}
void Assign(CGLAcct& account, Let<bool> let, const Variant& value) {
    (account.*let)(value.ToBool());
}
void Assign(CGLAcct& account, Let<std::string> let, const Variant& value) {
    (account.*let)(value.ToText());
}
void Assign(CGLAcct& account, Let<Variant> let, const Variant& value) { (account.*let)(value); }

template <auto get, auto let>
constexpr Member<CGLAcct> Property(std::string_view name) {
    return {name, [](CGLAcct& account) { return Variant((account.*get)()); },
            [](CGLAcct& account, const Variant& value) { Assign(account, let, value); }};
}

constexpr Member<CGLAcct> kProperties[] = {
    Property<&CGLAcct::ExCurrencyId, &CGLAcct::SetExCurrencyId>("ExCurrencyId"),
    Property<&CGLAcct::GIFIAcctId, &CGLAcct::SetGIFIAcctId>("GIFIAcctId"),
    Property<&CGLAcct::Note, &CGLAcct::SetNote>("Note"),
    Property<&CGLAcct::BqAcct, &CGLAcct::SetBqAcct>("BqAcct"),
    Property<&CGLAcct::GroupType, &CGLAcct::SetGroupType>("GroupType"),
    Property<&CGLAcct::ChqAcct, &CGLAcct::SetChqAcct>("ChqAcct"),
    Property<&CGLAcct::InActive, &CGLAcct::SetInActive>("InActive"),
    Property<&CGLAcct::AcctType, &CGLAcct::SetAcctType>("AcctType"),
    Property<&CGLAcct::Descr, &CGLAcct::SetDescr>("Descr"),
    Property<&CGLAcct::GLAcctId, &CGLAcct::SetGLAcctId>("GLAcctId"),
    Property<&CGLAcct::InGLAcctId, &CGLAcct::SetInGLAcctId>("InGLAcctId"),
};

const Member<CGLAcct>& PropertyNamed(const CGLAcct& account, std::string_view name) {
    const auto* property = FindMember<CGLAcct>(kProperties, name);
    if (property == nullptr) RaiseUnknownMember(account.ObjectName(), name);
    return *property;
}

}  // namespace

Variant CGLAcct::Get(std::string_view name) {
    const auto& property = PropertyNamed(*this, name);
    return framework::GuardFormB(ObjectName(), property.name, [&] { return property.get(*this); });
}

void CGLAcct::Put(std::string_view name, const Variant& value) {
    const auto& property = PropertyNamed(*this, name);
    framework::GuardFormB(ObjectName(), property.name, [&] { property.put(*this, value); });
}

}  // namespace varnel
