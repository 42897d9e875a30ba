#pragma once

#include <string_view>

namespace tavrel {

/// Makes the system calls of a save fail. The test program's own ones pass everything on unless they are armed.
class FaultyCalls {
public:
    /// The call of that number, from 1, fails with the error; writes that are not failed take one byte each at most
    /// when `shortWrites` is set.
    static void failAt(int number, int error, bool shortWrites = false);
    /// The call of that number ends the program by the signal, before it does anything or after it has.
    static void signalAt(int number, int signal, bool after);
    /// Every call of a name fails with the error, whatever else is armed.
    static void failAlways(std::string_view name, int error);
    /// The name of the call that failed; null when none was reached.
    static const char* failed();
    /// How many calls there were since the arming; none is counted or failed from now on.
    static int disarm();
};

}  // namespace tavrel
