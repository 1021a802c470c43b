#include "mask_editor/screen/MockScreen.h"

namespace pelmira::test {

MockScreen::MockScreen(bool allTools)
{
    wandButton = new InterfaceButton(this);
    wandButton->setSelected(true);
    wandButton->setTintColor(QColor(255, 149, 0));
    showMaskButton = new InterfaceButton(this);
    undoButton = new InterfaceButton(this);
    saveButton = new InterfaceButton(this);
    if (allTools) {
        erasorButton = new InterfaceButton(this);
        replaceButton = new InterfaceButton(this);
        invertMaskButton = new InterfaceButton(this);
        brushAdjustButton = new InterfaceButton(this);
        backButton = new InterfaceButton(this);
        helpButton = new InterfaceButton(this);
    }
    changeBackgroundView = new MockBackgroundView;
    changeBackgroundView->setParent(this);
    toolTip = new MockToolTip;
    toolTip->setParent(this);
    dial = new ZKLScrollDial(this);
    dial->setTitle(QStringLiteral("Tolerance"));
}

void MockScreen::setInitialHeight(double height)
{
    initialHeight = height;
    buttonContainerHeight = height;
    placeDial();
}

void MockScreen::setBottomBarWidth(double width)
{
    bottomBarWidth = width;
    placeDial();
}

void MockScreen::placeDial()
{
    dialFrame = QRectF(0.0, initialHeight - 32.0, bottomBarWidth, 32.0);
    dial->setFrame(dialFrame);
    Q_EMIT changed();
}

void MockScreen::openPanel(QSizeF viewSize)
{
    const double barHeight = buttonContainerHeight + bottomSafeAreaInset;
    brushAdjustFrame = QRectF(20.0, viewSize.height() - barHeight - 20.0 - brushPanelHeight,
                              viewSize.width() - 40.0, brushPanelHeight);
    panel.setCurrentBrushType(BrushType::circle);
    brushAdjustView = &panel;
    Q_EMIT changed();
}

} // namespace pelmira::test
