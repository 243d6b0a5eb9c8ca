#pragma once

namespace varnel::cli {

/// The program: reads its arguments, does what they say, tells what went wrong, and returns the
/// exit code.
int Main(int argc, char** argv);

}  // namespace varnel::cli
