#pragma once

#include <string_view>

#include "host/object.h"

namespace varnel {

/// A new object of a public class: "Varnel.clsReport", "Varnel.CGLAcct", "Varnel.CGLAccts",
/// "Varnel.CGLAcctHelper". Case does not matter. Error 429 for any other identifier.
ObjectRef CreateObject(std::string_view identifier);

}  // namespace varnel

/// The same for a host that loads the shared library at run time: puts the new object into
/// `*object`, a std::shared_ptr<varnel::Object>, and returns 0; on failure leaves it alone, returns
/// the error number and, when `message` is not null, points it to a text that stays valid until the
/// next call. The host must be built with the same headers and C++ library.
extern "C" __attribute__((visibility("default"))) int VarnelCreateObject(const char* identifier,
                                                                         void* object,
                                                                         const char** message);
