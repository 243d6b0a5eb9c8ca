#pragma once

#include <string_view>

#include "framework/procedure.h"
#include "host/error.h"

namespace varnel::cli {

/// Does the work of a procedure of the command. When the database fails there, outside the
/// procedures of a report, the error that comes out tells the place as these do.
template <class Work>
auto TellingPlace(std::string_view procedure, Work&& work,
                  std::uint_least32_t line = __builtin_LINE()) {
    try {
        return work();
    } catch (const Error& error) {
        if (error.Number() != error_number::kDatabase) throw;
        throw Error(
            error.Number(), error.Source(),
            framework::FormAMessage("cli", procedure, framework::DescribeCurrentException(line)));
    }
}

}  // namespace varnel::cli
