#pragma once

// File calls that fail when they are told to: a library between the program, the toolkit and the C
// library, whose functions it takes the place of.
extern "C" {

/// From now on the calls on files below the folder are counted, and the n-th fails with the error,
/// with `andAllAfter` every later one, too. 0: none fails.
void failing_calls_begin(const char* folder, int nth, int error, bool andAllAfter);
/// Ends that, and gives the number of calls.
int failing_calls_end();
/// What failed first and where, or an empty text.
const char* failing_calls_first();
}
