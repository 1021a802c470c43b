#pragma once

#include "platform/screen/Screen.h"

#include <functional>
#include <memory>

namespace pelmira {

/// How a screen is shown that is presented over another.
enum class ModalPresentationStyle {
    FullScreen = 0,
    FormSheet = 2, ///< a card over the dimmed screen below
};

/// The stack of screens, as screens see it. Main thread only.
class ScreenStack {
public:
    virtual ~ScreenStack() = default;

    /// Shows the screen over the present one.
    virtual void pushViewController(std::shared_ptr<Screen> screen) = 0;
    /// Goes back to the screen below; the first one stays.
    virtual void popViewController() = 0;
    /// Shows the screen over the present one, apart from what is pushed and popped there.
    virtual void presentViewController(std::shared_ptr<Screen> screen, ModalPresentationStyle style,
                                       bool animated = true) = 0;
    /// Takes the topmost presented screen away, and all that stands on it. The completion runs when
    /// the screen below is to be seen again; without a presented screen, at once. Until then nothing
    /// can be pressed on the screen below.
    virtual void dismissViewController(std::function<void()> completion, bool animated = true) = 0;
    /// Takes screens out from under the top one: going back never shows them again.
    virtual void removeBelowTop(const std::function<bool(const Screen&)>& isUnwanted) = 0;
    /// Goes back to the first screen, past pushed and presented ones.
    virtual void popToRootViewController() = 0;
    virtual Screen* topScreen() const = 0;
    virtual bool holds(const std::function<bool(const Screen&)>& isWanted) const = 0;

    /// Takes screens of a kind out from under the top one.
    template <class Kind>
    void removeBelowTop()
    {
        removeBelowTop(std::function<bool(const Screen&)>(
            [](const Screen& screen) { return dynamic_cast<const Kind*>(&screen) != nullptr; }));
    }
    /// Whether a screen of a kind is on the stack.
    template <class Kind>
    bool holds() const
    {
        return holds(std::function<bool(const Screen&)>(
            [](const Screen& screen) { return dynamic_cast<const Kind*>(&screen) != nullptr; }));
    }
};

} // namespace pelmira
