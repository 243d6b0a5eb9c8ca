#pragma once

#include <functional>
#include <string>

#include "cli/commands/command.h"

namespace varnel::cli {

/// How an option is called and described.
struct Argument {
    std::string names;  // "-o,--output"
    std::string value;  // What the help calls its value; not used for flags.
    std::string help;
};

/// An option of one value, which is not empty and is given once. `take` returns what is wrong with
/// the value, or nothing.
using TakeValue = std::function<std::string(const std::string& value)>;
void AddValue(CLI::App& app, const Argument& argument, TakeValue take);

/// The same for a text, any text.
void AddText(CLI::App& app, const Argument& argument, std::string& target);

/// An option without a value.
void AddFlag(CLI::App& app, const Argument& argument, bool& target);

}  // namespace varnel::cli
