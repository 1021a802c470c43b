#pragma once

#include <QTest>

#include <functional>

namespace pelmira::test {

/// Serves the event loop until it has come to this; false if that takes longer than any of it
/// should, sanitizers and a busy machine included.
inline bool waitFor(const std::function<bool()>& done)
{
    return QTest::qWaitFor(done, 60000);
}

} // namespace pelmira::test

namespace pelmira {

using test::waitFor;

} // namespace pelmira
