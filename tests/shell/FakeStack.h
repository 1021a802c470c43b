#pragma once

#include "platform/screen/ScreenStack.h"

#include <QSizeF>

#include <algorithm>
#include <functional>
#include <memory>
#include <stdexcept>
#include <utility>
#include <vector>

namespace pelmira::test {

struct PlainScreen final : Screen {
    QUrl layoutFile() const override { return {}; }
};

/// Holds screens without showing them.
class FakeStack final : public ScreenStack {
public:
    void pushViewController(std::shared_ptr<Screen> screen) override
    {
        add(std::move(screen), false);
    }
    void popViewController() override
    {
        left.push_back(std::move(entries.back().screen));
        entries.pop_back();
    }
    void presentViewController(std::shared_ptr<Screen> screen, ModalPresentationStyle,
                               bool) override
    {
        add(std::move(screen), true);
    }
    void dismissViewController(std::function<void()>, bool) override
    {
        for (bool isDone = false; !isDone && entries.size() > 1;) {
            isDone = entries.back().isPresented;
            popViewController();
        }
    }
    using ScreenStack::removeBelowTop;
    void popToRootViewController() override
    {
        while (entries.size() > 1)
            popViewController();
    }
    using ScreenStack::holds;
    bool holds(const std::function<bool(const Screen&)>& isWanted) const override
    {
        return std::any_of(entries.begin(), entries.end(),
                           [&](const Entry& entry) { return isWanted(*entry.screen); });
    }
    void removeBelowTop(const std::function<bool(const Screen&)>& isUnwanted) override
    {
        const auto end = entries.end() - 1;
        entries.erase(std::remove_if(entries.begin(), end,
                                     [&](const Entry& entry) { return isUnwanted(*entry.screen); }),
                      end);
    }
    Screen* topScreen() const override
    {
        return entries.empty() ? nullptr : entries.back().screen.get();
    }
    template <class Kind>
    Kind* top() const
    {
        return qobject_cast<Kind*>(topScreen());
    }
    /// The same; that another one is on top fails the test.
    template <class Kind>
    Kind& shown() const
    {
        Kind* const screen = top<Kind>();
        if (!screen)
            throw std::logic_error("another screen is on top");
        return *screen;
    }

    void add(std::shared_ptr<Screen> screen, bool isPresented)
    {
        screen->setViewSize({390, 844});
        entries.push_back({std::move(screen), isPresented});
    }

    struct Entry {
        std::shared_ptr<Screen> screen;
        bool isPresented;
    };
    std::vector<Entry> entries;
    std::vector<std::shared_ptr<Screen>> left; ///< kept: their own button asked them to go
};

} // namespace pelmira::test
