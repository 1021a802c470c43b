#pragma once

#include "platform/quick/GLKView.h"

namespace pelmira::test {

/// Draws its frames and shows none: the scene of a test has no GL to show them with.
class UnseenView : public GLKView {
    QSGNode* updatePaintNode(QSGNode*, UpdatePaintNodeData*) override { return nullptr; }
};

} // namespace pelmira::test
