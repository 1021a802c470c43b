#pragma once

#include "platform/base/RunLoop.h"

#include <chrono>
#include <functional>
#include <thread>

namespace pelmira::test {

/// Serves the main queue until it has come to this; false if that takes longer than any of it
/// should.
inline bool drainUntil(const std::function<bool()>& done)
{
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(60);
    while (!done() && std::chrono::steady_clock::now() < deadline)
        if (!drainMainQueue())
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
    return done();
}

} // namespace pelmira::test
