#pragma once

// The mask editor's screen with all that a test asks it for.

#include "controls/Alert.h"
#include "controls/BrushPanelView.h"
#include "controls/InterfaceButton.h"
#include "controls/ZKLScrollDial.h"
#include "mask_editor/screen/BackgroundPreview.h"
#include "mask_editor/screen/KeyboardAim.h"
#include "mask_editor/screen/ToolBars.h"
#include "mask_editor/screen/ToolTip.h"
#include "mask_editor/screen/ViewController.h"
#include "mask_editor/surface/RenderOut.h"
#include "support/EngineFixture.h"
