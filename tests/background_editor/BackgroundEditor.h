#pragma once

#include "background_editor/screen/EditBackgroundVC.h"
#include "support/Test.h"

namespace pelmira::test {

/// The background editor's screen and what it needs.
struct BackgroundEditor {
    explicit BackgroundEditor(QSizeF size)
        : screen(std::make_shared<EditBackgroundVC>(defaults, hud, [size] { return size; }))
    {
    }
    /// Without a window.
    void show(const QImage& cutOut)
    {
        screen->setFgImage(cutOut);
        screen->viewDidLoad();
        screen->setViewSize({390, 844});
        screen->viewDidAppear(true);
    }
    CanvasImageView& canvas() { return *screen->workAreaView()->bgImageView(); }

    TemporaryFolder folder;
    UserDefaults defaults{folder.path("preferences.json")};
    ZKLProgressHUD hud;
    std::shared_ptr<EditBackgroundVC> screen;
};

} // namespace pelmira::test
