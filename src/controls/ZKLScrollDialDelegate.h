#pragma once

namespace pelmira {

class ZKLScrollDial;

/// Told when the user turns a dial.
class ZKLScrollDialDelegate {
public:
    ZKLScrollDialDelegate() = default;
    ZKLScrollDialDelegate(const ZKLScrollDialDelegate&) = delete;
    ZKLScrollDialDelegate& operator=(const ZKLScrollDialDelegate&) = delete;

    /// Called on each scroll event, also where the value stays; it must be cheap.
    virtual void zklScrollDial(ZKLScrollDial& dial, double valueChanged) = 0;

protected:
    ~ZKLScrollDialDelegate() = default;
};

} // namespace pelmira
