// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "tests/soak/FaultTable.h"
#include "tests/soak/ToolSession.h"

#include <string>

/// Each fault at each stage, for sound and data: what the user reads, that the list is kept, that
/// the next disc is burned, and how long the window's event loop was blocked.
class Matrix {
public:
    Matrix(SoakScene &scene, ToolSession &session) : scene_(scene), session_(session) {}

    /// Prints a table (Markdown) and a line for each cell that is not as it has to be; the number
    /// of those. `onlyFault` is part of a name; empty for all.
    int run(const std::string &onlyFault);

private:
    struct Cell {
        std::string read;
        bool isAsExpected = false;
        bool isListKept = false;
        bool isNextBurned = false;
        double blocked = 0;
    };

    bool learnLeadOut(int kind);
    bool prepare(int kind);
    Cell meet(const FaultCase &faultCase, FaultStage stage, int kind);
    Cell meetWhileChecking(const FaultCase &faultCase);
    void act(const FaultCase &faultCase);
    bool burnNext(int kind);
    void print(const Fault &fault, FaultStage stage, int kind, const Cell &cell);

    SoakScene &scene_;
    ToolSession &session_;
    recorder::Lba leadOut_[2] = {0, 0};
    int failures_ = 0;
};
