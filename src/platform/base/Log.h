#pragma once

#include <functional>
#include <string>

namespace pelmira {

/// Writes one plain line to standard error. There are no levels. Safe from any thread.
[[gnu::format(printf, 1, 2)]] void logLine(const char* format, ...);

/// Diverts the log, for tests that look at it; an empty function restores standard error.
void setLogSink(std::function<void(const std::string&)> sink);

} // namespace pelmira
