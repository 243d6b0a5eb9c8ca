#include "framework/create_object.h"

#include <string>

#include "framework/catalogue.h"
#include "framework/cls_report.h"
#include "host/error.h"

namespace varnel {

ObjectRef CreateObject(std::string_view identifier) {
    if (SameName(identifier, "Varnel.clsReport")) return std::make_shared<clsReport>();
    for (const auto& entry : framework::PublicClasses()) {
        if (!SameName(identifier, entry.identifier)) continue;
        if (entry.make != nullptr) return entry.make();
        Raise(error_number::kCannotCreateObject, "Varnel",
              "The class " + std::string(entry.identifier) + " is not part of this version");
    }
    Raise(error_number::kCannotCreateObject, "Varnel",
          "There is no class \"" + std::string(identifier) +
              "\"; the public classes are Varnel.clsReport, Varnel.CGLAcct, Varnel.CGLAccts and "
              "Varnel.CGLAcctHelper");
}

}  // namespace varnel

int VarnelCreateObject(const char* identifier, void* object, const char** message) {
    static std::string last_message;
    int number = varnel::error_number::kOther;
    try {
        if (identifier == nullptr || object == nullptr)
            varnel::Raise(varnel::error_number::kInvalidArgument, "Varnel",
                          "VarnelCreateObject needs an identifier and a place for the object");
        *static_cast<varnel::ObjectRef*>(object) = varnel::CreateObject(identifier);
        return 0;
    } catch (const varnel::Error& error) {
        number = error.Number();
        last_message = error.Description();
    } catch (const std::exception& error) {
        last_message = error.what();
    } catch (...) {
        last_message = "An unknown failure";
    }
    if (message != nullptr) *message = last_message.c_str();
    return number;
}
