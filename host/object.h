#pragma once

#include <memory>
#include <span>
#include <string>
#include <string_view>

namespace varnel {

class Variant;

/// The late-bound face of an object: members reached by name at run time. Names ignore case.
///
/// Reports, their controls and the public classes answer to it; host services may. A member that
/// the object does not have raises error 438 naming object and member.
class Object {
  public:
    virtual ~Object() = default;

    /// The class name that messages show, for example "dsrGeneralJournal".
    virtual std::string_view ObjectName() const { return "Object"; }
    virtual Variant Get(std::string_view name);
    virtual void Put(std::string_view name, const Variant& value);
    virtual Variant Call(std::string_view name, std::span<const Variant> arguments);

  protected:
    Object() = default;
    Object(const Object&) = default;
    Object& operator=(const Object&) = default;
};

/// A counted reference: the object lives as long as anyone holds one.
using ObjectRef = std::shared_ptr<Object>;

/// True when the two names are the same but for ASCII case: the rule for members, columns and
/// settings.
bool SameName(std::string_view a, std::string_view b);

/// Raises error 438 for `member` of the object called `object`.
[[noreturn]] void RaiseUnknownMember(std::string_view object, std::string_view member);

}  // namespace varnel
