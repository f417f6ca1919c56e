// vexlo-cli: the command-line companion of the editor.
#include <iostream>
#include <string>
#include <vector>

#include "cli/cli_commands.h"

int main(int argc, char* argv[]) {
    std::vector<std::string> args(argv + 1, argv + argc);
    return vexlo::cli::RunCli(args, std::cout, std::cerr);
}
