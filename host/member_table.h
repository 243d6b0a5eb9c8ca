#pragma once

#include <memory>
#include <span>
#include <string_view>
#include <vector>

#include "host/error.h"
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

/// The object that a value refers to, as a T; null for an empty reference. Error 13 naming an
/// object of another kind.
template <class T>
std::shared_ptr<T> ObjectAs(const Variant& value) {
    const ObjectRef object = value.ToObject();
    auto wanted = std::dynamic_pointer_cast<T>(object);
    if (object != nullptr && wanted == nullptr)
        throw Error(error_number::kTypeMismatch, "Varnel",
                    "The member takes an object of another kind than this " +
                        std::string(object->ObjectName()));
    return wanted;
}

/// The argument of a call at that place; error 5 when there are fewer.
inline const Variant& ArgumentAt(std::span<const Variant> arguments, std::size_t index) {
    if (index < arguments.size()) return arguments[index];
    throw Error(error_number::kInvalidArgument, "Varnel",
                "The method takes more arguments than the " + std::to_string(arguments.size()) +
                    " it was given");
}

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

/// The members of an object that is made of parts, each part with a table of its own. Tables are
/// asked in the order in which they were added; parts must live as long as the object.
class MemberParts {
  public:
    template <class T>
    void Add(T& part, std::span<const Member<T>> table) {
        parts_.push_back(std::make_unique<TablePart<T>>(part, table));
    }

    // False when no part offers that member for that use.
    bool Get(std::string_view name, Variant& value) const {
        return Any([&](Part& part) { return part.Get(name, value); });
    }
    bool Put(std::string_view name, const Variant& value) const {
        return Any([&](Part& part) { return part.Put(name, value); });
    }
    bool Call(std::string_view name, std::span<const Variant> arguments, Variant& result) const {
        return Any([&](Part& part) { return part.Call(name, arguments, result); });
    }

  private:
    struct Part {
        virtual ~Part() = default;
        virtual bool Get(std::string_view name, Variant& value) = 0;
        virtual bool Put(std::string_view name, const Variant& value) = 0;
        virtual bool Call(std::string_view name, std::span<const Variant> arguments,
                          Variant& result) = 0;
    };

    template <class T>
    struct TablePart final : Part {
        TablePart(T& the_part, std::span<const Member<T>> its_table)
            : part(the_part), table(its_table) {}
        bool Get(std::string_view name, Variant& value) override {
            const auto* member = FindMember(table, name);
            if (member == nullptr || member->get == nullptr) return false;
            value = member->get(part);
            return true;
        }
        bool Put(std::string_view name, const Variant& value) override {
            const auto* member = FindMember(table, name);
            if (member == nullptr || member->put == nullptr) return false;
            member->put(part, value);
            return true;
        }
        bool Call(std::string_view name, std::span<const Variant> arguments,
                  Variant& result) override {
            const auto* member = FindMember(table, name);
            if (member == nullptr || member->call == nullptr) return false;
            result = member->call(part, arguments);
            return true;
        }
        T& part;
        std::span<const Member<T>> table;
    };

    template <class Ask>
    bool Any(Ask ask) const {
        for (const auto& part : parts_)
            if (ask(*part)) return true;
        return false;
    }

    std::vector<std::unique_ptr<Part>> parts_;
};

}  // namespace varnel
