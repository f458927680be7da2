// SPDX-License-Identifier: GPL-2.0-or-later
#include "cli/Program.h"

#include <string>
#include <vector>

int main(int argumentCount, char **arguments) {
    return static_cast<int>(
        cli::runProgram(std::vector<std::string>(arguments + 1, arguments + argumentCount)));
}
