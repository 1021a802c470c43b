#pragma once

#include "EditorScreen.h"
#include "mask_editor/surface/RenderOut.h"
#include "support/EngineFixture.h"
#include "support/ShownScreen.h"

namespace pelmira::test {

/// The mask editor in a window, with a photo open.
class ShownEditor {
public:
    explicit ShownEditor(QSize size = {390, 844}) { open(size); }

    /// Anew, with nothing preferred.
    void open(QSize size)
    {
        shown.reset();
        editor = {};
        folder.emplace();
        defaults.emplace(folder->path("preferences.json"));
        editor = EditorScreen(*defaults, [] { return GLContext::surfaceless(); });
        editor.setImage(discImage(200, 200));
        shown.emplace(editor.screen(), size);
        EXPECT_TRUE(engine().canvas.isOpen() && settle());
    }

    MaskEditorEngine& engine() { return *editor.engine(); }
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

    std::optional<TemporaryFolder> folder;
    std::optional<UserDefaults> defaults;
    EditorScreen editor;
    std::optional<ShownScreen> shown;
};

} // namespace pelmira::test
