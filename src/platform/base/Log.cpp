#include "platform/base/Log.h"

#include <cstdarg>
#include <cstdio>
#include <mutex>
#include <utility>

namespace pelmira {
namespace {

std::mutex& sinkMutex()
{
    static std::mutex mutex;
    return mutex;
}

std::function<void(const std::string&)>& currentSink()
{
    static std::function<void(const std::string&)> sink;
    return sink;
}

} // namespace

void logLine(const char* format, ...)
{
    char line[1024];
    va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(line, sizeof line, format, arguments);
    va_end(arguments);

    const std::lock_guard lock(sinkMutex());
    if (currentSink())
        currentSink()(line);
    else
        std::fprintf(stderr, "%s\n", line);
}

void setLogSink(std::function<void(const std::string&)> sink)
{
    const std::lock_guard lock(sinkMutex());
    currentSink() = std::move(sink);
}

} // namespace pelmira
