// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

/// All tests of a program that opens windows: with an application, a home of their own, so that
/// nobody's settings are read or written, and no display unless QT_QPA_PLATFORM says otherwise
/// (listing the tests needs none either). What main returns.
int runQtTests(int argc, char *argv[]);
