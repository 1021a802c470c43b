#pragma once

#include <QObject>
#include <QRectF>
#include <QSizeF>

namespace pelmira {

/// Where the two tool bars and the dial stand. The layout file tells how large it laid them out
/// and follows the constants given here; while a tool is in use both bars are off the screen.
/// All in points.
class ToolBars final : public QObject {
    Q_OBJECT
    // Told by the layout file.
    Q_PROPERTY(double buttonContainerInitialHeight MEMBER _buttonContainerInitialHeight WRITE
                   setButtonContainerInitialHeight NOTIFY changed)
    Q_PROPERTY(double bottomSafeAreaInset MEMBER _bottomSafeAreaInset WRITE setBottomSafeAreaInset
                   NOTIFY changed)
    Q_PROPERTY(double wandButtonMaxY MEMBER _wandButtonMaxY WRITE setWandButtonMaxY NOTIFY changed)
    Q_PROPERTY(double topBarHeight MEMBER _topBarHeight WRITE setTopBarHeight NOTIFY changed)
    Q_PROPERTY(double bottomBarWidth MEMBER _bottomBarWidth WRITE setBottomBarWidth NOTIFY changed)
    // Followed by the layout file.
    Q_PROPERTY(double buttonContainerHeight READ buttonContainerHeight NOTIFY changed)
    Q_PROPERTY(double topBarTop READ topBarTop NOTIFY changed)
    Q_PROPERTY(QRectF dialFrame READ dialFrame NOTIFY changed)

public:
    using QObject::QObject;

    bool showTools() const { return _showTools; }
    void setShowTools(bool showTools) { set(_showTools, showTools); }

    /// The bottom bar's height above the safe area. Hidden, it also gives up the safe area.
    double buttonContainerHeight() const
    {
        return _showTools ? _buttonContainerInitialHeight : -_bottomSafeAreaInset;
    }
    /// The bottom bar's height including the safe area under it.
    double bottomBarHeight() const { return buttonContainerHeight() + _bottomSafeAreaInset; }
    double topBarTop() const { return _showTools ? 0.0 : -_topBarHeight; }
    double topBarBottom() const { return topBarTop() + _topBarHeight; }

    /// The place of the dial with the given index in the bottom bar's coordinates.
    QRectF frameForDialAtIndex(int index) const;
    QRectF dialFrame() const { return frameForDialAtIndex(0); }

    void setButtonContainerInitialHeight(double v) { set(_buttonContainerInitialHeight, v); }
    void setBottomSafeAreaInset(double v) { set(_bottomSafeAreaInset, v); }
    void setWandButtonMaxY(double v) { set(_wandButtonMaxY, v); }
    void setTopBarHeight(double v) { set(_topBarHeight, v); }
    void setBottomBarWidth(double v) { set(_bottomBarWidth, v); }

Q_SIGNALS:
    void changed();

private:
    double heightForEachDialArea() const { return _buttonContainerInitialHeight - _wandButtonMaxY; }

    template <class T>
    void set(T& field, T value)
    {
        if (field == value)
            return;
        field = value;
        Q_EMIT changed();
    }

    bool _showTools = true;
    double _buttonContainerInitialHeight = 0.0;
    double _bottomSafeAreaInset = 0.0;
    double _wandButtonMaxY = 0.0;
    double _topBarHeight = 0.0;
    double _bottomBarWidth = 0.0;
};

} // namespace pelmira
