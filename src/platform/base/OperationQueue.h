#pragma once

#include "platform/base/RunLoop.h"

#include <memory>

namespace pelmira {

/// Runs one operation at a time, in the order in which they came, and can drop those that wait.
/// Destroying it drops none. Safe from any thread.
class OperationQueue {
public:
    explicit OperationQueue(Queue& target);

    void addOperation(Job operation);
    /// Those that haven't started. One that runs goes on to its end.
    void cancelAllOperations();
    /// Not to be called by an operation.
    void waitUntilAllOperationsAreFinished();

private:
    struct State;
    std::shared_ptr<State> _state;
};

} // namespace pelmira
