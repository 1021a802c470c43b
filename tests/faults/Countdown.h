#pragma once

#include <dlfcn.h>

// How the calls that may fail are counted, whatever their kind. Safe from any thread.

enum class FailingKind { None, Files, Blocks, GL };

void beginCounting(FailingKind kind, int nth, bool andAllAfter);
bool isCounted(FailingKind kind);
/// Counts a call; whether it is to fail. Asks for no memory.
bool strikes(const char* what, const char* where = "");

/// The function of that name whose place was taken.
template <class Function>
Function* next(Function*, const char* name)
{
    return reinterpret_cast<Function*>(::dlsym(RTLD_NEXT, name));
}
