#pragma once

#include "controls/Alert.h"
#include "controls/BrushPanelView.h"
#include "controls/InterfaceButton.h"
#include "controls/ZKLScrollDial.h"

#include <QObject>
#include <QRectF>
#include <QSizeF>
#include <QStringList>

namespace pelmira::test {

class MockToolTip : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString text MEMBER text NOTIFY changed)
    Q_PROPERTY(double alpha MEMBER alpha NOTIFY changed)
    Q_PROPERTY(int fadeMilliseconds MEMBER fadeMilliseconds NOTIFY changed)
    Q_PROPERTY(QRectF frame MEMBER frame NOTIFY changed)
    Q_PROPERTY(QSizeF fittedSize MEMBER fittedSize)
public:
    QString text;
    double alpha = 0.0;
    int fadeMilliseconds = 0;
    QRectF frame;
    QSizeF fittedSize;
Q_SIGNALS:
    void changed();
};

class MockBackgroundView : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool showsImage MEMBER showsImage NOTIFY changed)
    Q_PROPERTY(QColor backgroundColor MEMBER backgroundColor NOTIFY changed)
    Q_PROPERTY(QColor borderColor MEMBER borderColor NOTIFY changed)
    Q_PROPERTY(double alpha MEMBER alpha NOTIFY changed)
public:
    bool showsImage = true;
    QColor backgroundColor = Qt::black;
    QColor borderColor = Qt::black;
    double alpha = 1.0;
Q_SIGNALS:
    void changed();
};

/// Stands for the keyboard's aim and writes down what it is told.
class MockAim : public QObject {
    Q_OBJECT
public:
    explicit MockAim(QStringList& calls) : _calls(calls) {}
    Q_INVOKABLE void move(int x, int y, bool strides)
    {
        _calls << QStringLiteral("%1%2,%3")
                      .arg(strides ? QStringLiteral("stride") : QStringLiteral("aim"))
                      .arg(x)
                      .arg(y);
    }
    Q_INVOKABLE void moveView(int x, int y) { _calls << QStringLiteral("view%1,%2").arg(x).arg(y); }
    Q_INVOKABLE void press() { _calls << QStringLiteral("press"); }
    Q_INVOKABLE void hold() { _calls << QStringLiteral("hold"); }
    Q_INVOKABLE void release() { _calls << QStringLiteral("release"); }
    Q_INVOKABLE void leave() { _calls << QStringLiteral("leave"); }

private:
    QStringList& _calls;
};

/// Stands for the mask editor's controller: what the layout file reads, writes and calls.
class MockScreen : public QObject {
    Q_OBJECT
    Q_PROPERTY(pelmira::InterfaceButton* wandButton MEMBER wandButton CONSTANT)
    Q_PROPERTY(pelmira::InterfaceButton* erasorButton MEMBER erasorButton CONSTANT)
    Q_PROPERTY(pelmira::InterfaceButton* replaceButton MEMBER replaceButton CONSTANT)
    Q_PROPERTY(pelmira::InterfaceButton* invertMaskButton MEMBER invertMaskButton CONSTANT)
    Q_PROPERTY(pelmira::InterfaceButton* showMaskButton MEMBER showMaskButton CONSTANT)
    Q_PROPERTY(pelmira::InterfaceButton* undoButton MEMBER undoButton CONSTANT)
    Q_PROPERTY(pelmira::InterfaceButton* saveButton MEMBER saveButton CONSTANT)
    Q_PROPERTY(pelmira::InterfaceButton* brushAdjustButton MEMBER brushAdjustButton CONSTANT)
    Q_PROPERTY(pelmira::InterfaceButton* backButton MEMBER backButton CONSTANT)
    Q_PROPERTY(pelmira::InterfaceButton* helpButton MEMBER helpButton CONSTANT)
    Q_PROPERTY(pelmira::test::MockBackgroundView* changeBackgroundView MEMBER changeBackgroundView
                   CONSTANT)
    Q_PROPERTY(pelmira::test::MockToolTip* toolTip MEMBER toolTip CONSTANT)
    Q_PROPERTY(pelmira::ZKLScrollDial* dial MEMBER dial NOTIFY changed)
    Q_PROPERTY(QObject* keyboardAim READ keyboardAim CONSTANT)
    Q_PROPERTY(QRectF dialFrame MEMBER dialFrame NOTIFY changed)
    Q_PROPERTY(QObject* bars READ bars CONSTANT)
    Q_PROPERTY(pelmira::Alert* alert READ theAlert CONSTANT)
    Q_PROPERTY(pelmira::BrushPanelView* brushAdjustView MEMBER brushAdjustView NOTIFY changed)
    Q_PROPERTY(QRectF brushAdjustFrame MEMBER brushAdjustFrame NOTIFY changed)
    Q_PROPERTY(double brushPanelHeight MEMBER brushPanelHeight)
    Q_PROPERTY(double buttonContainerHeight MEMBER buttonContainerHeight NOTIFY changed)
    Q_PROPERTY(double topBarTop MEMBER topBarTop NOTIFY changed)
    Q_PROPERTY(double buttonContainerInitialHeight MEMBER initialHeight WRITE setInitialHeight)
    Q_PROPERTY(double bottomSafeAreaInset MEMBER bottomSafeAreaInset)
    Q_PROPERTY(double wandButtonMaxY MEMBER wandButtonMaxY)
    Q_PROPERTY(double topBarHeight MEMBER topBarHeight)
    Q_PROPERTY(double bottomBarWidth MEMBER bottomBarWidth WRITE setBottomBarWidth)
public:
    explicit MockScreen(bool allTools);

    /// The bars' measures, which stand here too.
    QObject* bars() { return this; }
    QObject* keyboardAim() { return &aim; }
    Alert* theAlert() { return &alert; }
    Alert alert;

    /// The methods called so far, by name.
    QStringList calls;
    MockAim aim{calls};

    Q_INVOKABLE void wandButtonPressed() { calls << QStringLiteral("wand"); }
    Q_INVOKABLE void erasorButtonPressed() { calls << QStringLiteral("erasor"); }
    Q_INVOKABLE void replaceButtonPressed() { calls << QStringLiteral("replace"); }
    Q_INVOKABLE void invertMaskButtonPressed() { calls << QStringLiteral("invertMask"); }
    Q_INVOKABLE void showMaskButtonPressed() { calls << QStringLiteral("showMask"); }
    Q_INVOKABLE void undoButtonPressed() { calls << QStringLiteral("undo"); }
    Q_INVOKABLE void saveButtonPressed() { calls << QStringLiteral("save"); }
    Q_INVOKABLE void brushButtonPressed() { calls << QStringLiteral("brush"); }
    Q_INVOKABLE void helpButtonPressed() { calls << QStringLiteral("help"); }
    Q_INVOKABLE void stepBrushSize(int steps) { calls << QString::number(steps); }
    Q_INVOKABLE void backButtonPressed() { calls << QStringLiteral("back"); }
    Q_INVOKABLE void changeBackgroundViewTapped() { calls << QStringLiteral("background"); }

    void setInitialHeight(double height);
    void setBottomBarWidth(double width);
    void placeDial();
    void openPanel(QSizeF viewSize);

    InterfaceButton* wandButton = nullptr;
    InterfaceButton* erasorButton = nullptr;
    InterfaceButton* replaceButton = nullptr;
    InterfaceButton* invertMaskButton = nullptr;
    InterfaceButton* showMaskButton = nullptr;
    InterfaceButton* undoButton = nullptr;
    InterfaceButton* saveButton = nullptr;
    InterfaceButton* brushAdjustButton = nullptr;
    InterfaceButton* backButton = nullptr;
    InterfaceButton* helpButton = nullptr;
    MockBackgroundView* changeBackgroundView = nullptr;
    MockToolTip* toolTip = nullptr;
    ZKLScrollDial* dial = nullptr;
    QRectF dialFrame;
    BrushPanelView panel;
    BrushPanelView* brushAdjustView = nullptr;
    QRectF brushAdjustFrame;
    double brushPanelHeight = 0.0;
    double buttonContainerHeight = 0.0;
    double topBarTop = 0.0;
    double initialHeight = 0.0;
    double bottomSafeAreaInset = 0.0;
    double wandButtonMaxY = 0.0;
    double topBarHeight = 0.0;
    double bottomBarWidth = 0.0;

Q_SIGNALS:
    void changed();
};

} // namespace pelmira::test
