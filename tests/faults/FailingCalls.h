#pragma once

#include <cstddef>

// Calls that fail when they are told to: a library between the program, the toolkit and the
// system, whose functions it takes the place of. One kind of calls is counted at a time; the n-th
// fails, with `andAllAfter` every later one, too. 0: none fails.
extern "C" {

/// Calls on files below the folder; they fail with the error.
void failing_files_begin(const char* folder, int nth, int error, bool andAllAfter);
/// Allocations of so many bytes and more, by the program, the toolkit and the picture formats that
/// tell of failures. Not those of the GL driver and its compiler, which end the process.
void failing_blocks_begin(std::size_t least, int nth, bool andAllAfter);
/// What makes GL objects and their contents, as far as the program itself calls it. The toolkit's
/// own drawing goes another way.
void failing_gl_begin(int nth, bool andAllAfter);

/// Ends that, and gives the number of calls.
int failing_calls_end();
/// What failed first and where, or an empty text.
const char* failing_calls_first();
}
