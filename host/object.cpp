#include "host/object.h"

#include "host/error.h"
#include "host/variant.h"

namespace varnel {

namespace {

char Lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

}  // namespace

bool SameName(std::string_view a, std::string_view b) {
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i)
        if (Lower(a[i]) != Lower(b[i])) return false;
    return true;
}

void RaiseUnknownMember(std::string_view object, std::string_view member) {
    throw Error(error_number::kUnknownMember, std::string(object),
                std::string(object) + " has no member \"" + std::string(member) + "\"");
}

Variant Object::Get(std::string_view name) { RaiseUnknownMember(ObjectName(), name); }

void Object::Put(std::string_view name, const Variant&) { RaiseUnknownMember(ObjectName(), name); }

Variant Object::Call(std::string_view name, std::span<const Variant>) {
    RaiseUnknownMember(ObjectName(), name);
}

}  // namespace varnel
