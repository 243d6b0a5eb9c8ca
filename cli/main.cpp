#include "cli/command_line.h"

int main(int argc, char** argv) { return varnel::cli::Main(argc, argv); }
