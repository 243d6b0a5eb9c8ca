#include "cli/commands/command.h"

namespace varnel::cli {

namespace {

constexpr Command kCommands[] = {
    {"demo", "Make the database of a demo company", DescribeDemo},
    {"copy", "Copy a company from one database to another", DescribeCopy},
    {"reports", "List the reports, with the options each takes", DescribeReports},
    {"run", "Run a report", DescribeRun},
    {"compare", "Run a report twice and list what changed", DescribeCompare},
    {"completion", "Print a script that completes commands and options", DescribeCompletion},
};

}  // namespace

std::span<const Command> Commands() { return kCommands; }

}  // namespace varnel::cli
