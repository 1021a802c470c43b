#include "faults/Countdown.h"

#include "faults/FailingCalls.h"

#include <atomic>
#include <cstdio>

namespace {

char firstFailure[5000];
std::atomic<FailingKind> counted = FailingKind::None;
std::atomic<int> calls = 0;
int failingCall = 0;
bool failsOn = false;

} // namespace

void beginCounting(FailingKind kind, int nth, bool andAllAfter)
{
    *firstFailure = 0;
    calls = 0;
    failingCall = nth;
    failsOn = andAllAfter;
    counted = kind;
}

bool isCounted(FailingKind kind)
{
    return counted == kind;
}

bool strikes(const char* what, const char* where)
{
    const int number = ++calls;
    if (failingCall == 0 || number < failingCall || (number > failingCall && !failsOn))
        return false;
    if (number == failingCall)
        std::snprintf(firstFailure, sizeof firstFailure, "%s %.4000s", what, where);
    return true;
}

extern "C" {

int failing_calls_end()
{
    counted = FailingKind::None;
    return calls;
}

const char* failing_calls_first()
{
    return firstFailure;
}
}
