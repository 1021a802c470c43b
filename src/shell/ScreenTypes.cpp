#include "shell/ScreenTypes.h"

#include "background_editor/canvas/BGECanvasView.h"
#include "background_editor/canvas/BGEWorkAreaView.h"
#include "background_editor/colors/BGEColorView.h"
#include "background_editor/colors/ChangeColorVC.h"
#include "background_editor/colors/ColorPickerLineView.h"
#include "background_editor/colors/ColorPickerView.h"
#include "background_editor/colors/ZKLRGBMixerVC.h"
#include "background_editor/object/HandleView.h"
#include "background_editor/object/StickerView.h"
#include "background_editor/patterns/BGEPatternCell.h"
#include "background_editor/patterns/BGEPatternView.h"
#include "background_editor/photo/BGEPhotoView.h"
#include "background_editor/screen/EditBackgroundVC.h"
#include "background_editor/shadow/BGEShadowView.h"
#include "background_editor/shadow/LayerShadow.h"
#include "controls/Alert.h"
#include "controls/BrushPanelView.h"
#include "controls/InterfaceButton.h"
#include "controls/PickerMark.h"
#include "controls/ScrollRange.h"
#include "controls/ScrollingTabbar.h"
#include "controls/StripButton.h"
#include "controls/StyleUtil.h"
#include "controls/TabButton.h"
#include "controls/ZKLProgressHUD.h"
#include "controls/ZKLScrollDial.h"
#include "controls/ZKLSlider.h"
#include "crop/ConstraintButton.h"
#include "crop/TOCropToolbar.h"
#include "crop/TOCropViewController.h"
#include "export/PicturePreview.h"
#include "export/RateMoreContainerView.h"
#include "export/SaveViewController.h"
#include "help/ZKLHelpController.h"
#include "intake/CameraPicker.h"
#include "intake/LimitedModeHeaderView.h"
#include "intake/PermissionOverlayView.h"
#include "intake/ZKLPhotoPicker.h"
#include "mask_editor/screen/BackgroundPreview.h"
#include "mask_editor/screen/KeyboardAim.h"
#include "mask_editor/screen/ToolTip.h"
#include "mask_editor/screen/ViewController.h"
#include "platform/quick/LayoutTypes.h"
#include "promotion/CrossPromoteItem.h"
#include "promotion/ZKLCrossPromoteVC.h"
#include "settings/EventLogVC.h"
#include "settings/SettingsVC.h"
#include "shell/NewHomeScreenVC.h"
#include "shell/ResumeView.h"

namespace pelmira {

void registerScreenTypes()
{
    qmlRegisterSingletonType<StyleUtil>("Pelmira", 1, 0, "StyleUtil",
                                        [](QQmlEngine*, QJSEngine*) { return new StyleUtil; });
    qmlRegisterType<PickerMark>("Pelmira", 1, 0, "PickerMark");
    qmlRegisterType<ScrollRange>("Pelmira", 1, 0, "ScrollRange");
    registerLayoutTypes<Alert, BrushPanelView, InterfaceButton, ScrollingTabbar, StripButton,
                        TabButton, ZKLProgressHUD, ZKLScrollDial, ZKLSlider>();
    registerLayoutTypes<NewHomeScreenVC, ResumeView>();
    registerLayoutTypes<CameraPicker, LimitedModeHeaderView, PermissionOverlayView,
                        ZKLPhotoPicker>();
    registerLayoutTypes<TOCropViewController, ConstraintButton, TOCropToolbar>();
    registerLayoutTypes<ViewController, BackgroundPreview, KeyboardAim, ToolTip>();
    registerLayoutTypes<SaveViewController, PicturePreview, RateMoreContainerView>();
    registerLayoutTypes<EditBackgroundVC, BGECanvasView, BGEColorView, BGEPatternCell,
                        BGEPatternView, BGEPhotoView, BGEShadowView, BGEWorkAreaView, ChangeColorVC,
                        ColorPickerLineView, ColorPickerView, HandleView, LayerShadow, StickerView,
                        ZKLRGBMixerVC>();
    registerLayoutTypes<SettingsVC, EventLogVC, ZKLHelpController>();
    registerLayoutTypes<ZKLCrossPromoteVC, CrossPromoteItem>();
}

} // namespace pelmira
