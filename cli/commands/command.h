#pragma once

#include <functional>
#include <span>
#include <string_view>

#include "cli/console.h"

namespace CLI {  // NOLINT(readability-identifier-naming): CLI11 calls itself so.
class App;
}

namespace varnel::cli {

/// A command of the program.
struct Command {
    /// Does the work and returns the exit code.
    using Action = std::function<int(Console& console)>;

    std::string_view name;
    std::string_view summary;
    /// Adds its options to `app` and returns what it does with them once they are parsed.
    Action (*describe)(CLI::App& app);
};

std::span<const Command> Commands();

Command::Action DescribeDemo(CLI::App& app);
Command::Action DescribeCopy(CLI::App& app);
Command::Action DescribeReports(CLI::App& app);
Command::Action DescribeRun(CLI::App& app);
Command::Action DescribeCompare(CLI::App& app);
Command::Action DescribeCompletion(CLI::App& app);

}  // namespace varnel::cli
