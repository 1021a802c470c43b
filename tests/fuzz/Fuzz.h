#pragma once

#include <QByteArray>

#include <cstdlib>

namespace pelmira {

/// What a target does with one input.
void fuzz(const QByteArray& input);

/// What isn't so is a finding.
inline void must(bool condition)
{
    if (!condition)
        std::abort();
}

} // namespace pelmira
