#include "Tour.h"

#include "background_editor/screen/EditBackgroundVC.h"
#include "crop/TOCropViewController.h"
#include "intake/ZKLPhotoPicker.h"

namespace pelmira {

// A pattern, and a shadow that falls on it.
void Tour::composeOnPattern()
{
    openBackgroundEditor();
    if (!backgroundEditor())
        return;
    tapItem("PATTERNS");
    picture("patterns-panel");
    tapItem("Pattern 3");
    picture("pattern");
    tapItem("SHADOW");
    tapAt("Horizontal", 0.75, 0.5);
    tapAt("Vertical", 0.85, 0.5);
    tapAt("Blur", 0.4, 0.5);
    waitFor([this] { return !backgroundEditor()->shadow()->image().isNull(); }, "a shadow falls");
    picture("shadow-panel");
    saveComposition();
}

// A photo from the library, cropped and blurred.
void Tour::pickBackgroundPhoto()
{
    tapItem("PHOTO");
    if (!waitForScreen<ZKLPhotoPicker>("the library opens for the background"))
        return;
    settle();
    picture("library-for-the-background");
    tapItem("pear 13.jpg"); // the newest that the tour did not save itself, so it is in sight
    waitFor([this] { return backgroundEditor() != nullptr; }, "the photo is picked");
    settle();
}

void Tour::composeOnPhoto()
{
    openBackgroundEditor();
    if (!backgroundEditor())
        return;
    PhotoBackground& photo = backgroundEditor()->depthPanels()->photo();
    pickBackgroundPhoto();
    picture("photo-panel");
    tapItem("Crop");
    if (!waitForScreen<TOCropViewController>("the background's photo is cropped"))
        return;
    tapItem("Square, Instagram");
    tapItem("Done");
    waitFor([this] { return backgroundEditor() != nullptr; }, "the crop is taken");
    settle();
    tapAt("Blur", 0.6, 0.5);
    waitFor([&photo] { return photo.bgImage().cacheKey() != photo.bgImageCropped().cacheKey(); },
            "the photo is blurred");
    picture("photo-blurred");
    saveComposition();
    settle();
}

} // namespace pelmira
