#pragma once

#include "support/EditorScreen.h"
#include "support/ShownScreen.h"

namespace pelmira::test {

/// The mask editor in a window, with a photo open.
class ShownEditor {
public:
    explicit ShownEditor(QSize size = {390, 844})
    {
        screen->setImage(discImage(200, 200));
        shown.emplace(screen, size);
        EXPECT_TRUE(engine().canvas.isOpen() && settle());
    }

    MaskEditorEngine& engine() { return *screen->engine(); }
    std::size_t levels() { return engine().history.levels(); }
    bool settle()
    {
        return drainUntil([this] { return !engine().canvas.isBusy(); });
    }
    QImage cutOut()
    {
        EXPECT_TRUE(settle());
        return renderCutOut(engine().canvas.fgMappedTexture.get());
    }

    TemporaryFolder folder;
    UserDefaults defaults{folder.path("preferences.json")};
    std::shared_ptr<ViewController> screen =
        std::make_shared<ViewController>(defaults, [] { return GLContext::surfaceless(); });
    std::optional<ShownScreen> shown;
};

} // namespace pelmira::test
