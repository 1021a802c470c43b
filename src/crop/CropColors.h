#pragma once

#include <QColor>

namespace pelmira {

/// The colours of the crop tool, one set for the process. Main thread only.
class CropColors {
public:
    static QColor backgroundColor() { return set().background; }
    static void setBackgroundColor(const QColor& color) { set().background = color; }
    /// Of the bars.
    static QColor panelColor() { return set().panel; }
    static void setPanelColor(const QColor& color) { set().panel = color; }
    /// Of what is chosen.
    static QColor label() { return set().label; }
    static void setLabel(const QColor& color) { set().label = color; }
    /// Of what isn't.
    static QColor secondaryLabel() { return set().secondaryLabel; }
    static void setSecondaryLabel(const QColor& color) { set().secondaryLabel = color; }

    /// Of what shines through the bars, and of the bars' writing: 2 is dark, 1 light on black.
    static int blurEffect() { return set().blurEffect; }
    static void setBlurEffect(int style) { set().blurEffect = style; }
    static int navBarStyle() { return set().navBarStyle; }
    static void setNavBarStyle(int style) { set().navBarStyle = style; }
    static int statusBarStyle() { return set().statusBarStyle; }
    static void setStatusBarStyle(int style) { set().statusBarStyle = style; }

private:
    struct Set {
        QColor background = QColor(28, 28, 30);
        QColor panel = Qt::black;
        QColor label = Qt::white;
        QColor secondaryLabel = QColor::fromRgbF(235.0F / 255, 235.0F / 255, 245.0F / 255, 0.6F);
        int blurEffect = 2;
        int navBarStyle = 1;
        int statusBarStyle = 1;
    };
    static Set& set()
    {
        static Set colors;
        return colors;
    }
};

} // namespace pelmira
