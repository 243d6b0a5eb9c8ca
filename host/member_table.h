#pragma once

#include <span>
#include <string_view>

#include "host/object.h"
#include "host/variant.h"

namespace varnel {

/// One late-bound member of class T: a property (get, put or both) or a method (call). What is null
/// is not offered.
template <class T>
struct Member {
    std::string_view name;
    Variant (*get)(T&) = nullptr;
    void (*put)(T&, const Variant&) = nullptr;
    Variant (*call)(T&, std::span<const Variant>) = nullptr;
};

/// The member of that name, or null.
template <class T>
const Member<T>* FindMember(std::span<const Member<T>> table, std::string_view name) {
    for (const auto& member : table)
        if (SameName(member.name, name)) return &member;
    return nullptr;
}

template <class T>
Variant GetMember(std::span<const Member<T>> table, T& object, std::string_view name) {
    const auto* member = FindMember(table, name);
    if (member == nullptr || member->get == nullptr) RaiseUnknownMember(object.ObjectName(), name);
    return member->get(object);
}

template <class T>
void PutMember(std::span<const Member<T>> table, T& object, std::string_view name,
               const Variant& value) {
    const auto* member = FindMember(table, name);
    if (member == nullptr || member->put == nullptr) RaiseUnknownMember(object.ObjectName(), name);
    member->put(object, value);
}

template <class T>
Variant CallMember(std::span<const Member<T>> table, T& object, std::string_view name,
                   std::span<const Variant> arguments) {
    const auto* member = FindMember(table, name);
    if (member == nullptr || member->call == nullptr) RaiseUnknownMember(object.ObjectName(), name);
    return member->call(object, arguments);
}

}  // namespace varnel
