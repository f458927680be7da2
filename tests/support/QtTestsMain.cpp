// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/support/QtTests.h"

int main(int argc, char *argv[]) {
    return runQtTests(argc, argv);
}
