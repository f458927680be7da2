// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/support/NaturalOrder.h"

#include <algorithm>
#include <cstddef>

namespace scorch {
namespace {

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

/// Letters without their case; as a number above 127 for bytes beyond ASCII.
unsigned char folded(char c) {
    const bool upper = c >= 'A' && c <= 'Z';
    return static_cast<unsigned char>(upper ? c - 'A' + 'a' : c);
}

int sign(std::size_t a, std::size_t b) {
    return a < b ? -1 : (a > b ? 1 : 0);
}

struct DigitRun {
    std::size_t zeros = 0;   ///< Leading ones; all but the last digit of a run of zeros.
    std::string_view digits; ///< Without the leading zeros.
};

DigitRun takeDigits(std::string_view text, std::size_t &at) {
    const auto isNoDigit = [](char c) {
        return !isDigit(c);
    };
    const auto *const first = text.begin() + static_cast<std::ptrdiff_t>(at);
    const auto *const last = std::find_if(first, text.end(), isNoDigit);
    const auto length = static_cast<std::size_t>(last - first);
    DigitRun run;
    while (run.zeros + 1 < length && first[run.zeros] == '0') {
        ++run.zeros;
    }
    run.digits = text.substr(at + run.zeros, length - run.zeros);
    at += length;
    return run;
}

int compareValues(const DigitRun &a, const DigitRun &b) {
    const int byLength = sign(a.digits.size(), b.digits.size());
    return byLength != 0 ? byLength : a.digits.compare(b.digits);
}

} // namespace

bool naturalLess(std::string_view a, std::string_view b) {
    int tie = 0;
    std::size_t atA = 0;
    std::size_t atB = 0;
    while (atA < a.size() && atB < b.size()) {
        if (isDigit(a[atA]) && isDigit(b[atB])) {
            const DigitRun runA = takeDigits(a, atA);
            const DigitRun runB = takeDigits(b, atB);
            if (const int order = compareValues(runA, runB); order != 0) {
                return order < 0;
            }
            tie = tie != 0 ? tie : sign(runA.zeros, runB.zeros);
            continue;
        }
        const unsigned char foldedA = folded(a[atA++]);
        const unsigned char foldedB = folded(b[atB++]);
        if (foldedA != foldedB) {
            return foldedA < foldedB;
        }
    }
    if (atA < a.size() || atB < b.size()) {
        return atB < b.size();
    }
    return tie != 0 ? tie < 0 : a < b;
}

} // namespace scorch
