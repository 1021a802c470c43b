#pragma once

#include <QObject>
#include <QSizeF>
#include <QUrl>

#include <memory>

namespace pelmira {

class GLView;

/// One screen of the application: what it shows is told by its layout file, what happens is told
/// here. The navigation controller calls the life-cycle operations, on the main thread, in this
/// order: `viewDidLoad` once, with the layout loaded; `viewWillAppear`, `viewDidAppear` and
/// `viewWillDisappear` with every coming and going; `viewDidAppear` follows the
/// first frame after the screen has come to rest. `viewDidDisappear` tells one that stays that
/// another covers it whole, at rest.
class Screen : public QObject {
    Q_OBJECT

public:
    /// The layout file, whose root item gets this object as its property `screen`.
    virtual QUrl layoutFile() const = 0;
    /// The layout's GL view, if it has one; nothing when the layout goes away.
    virtual void setGLView(GLView*) {}

    virtual void viewDidLoad() {}
    virtual void viewWillAppear(bool /*animated*/) {}
    virtual void viewDidAppear(bool /*animated*/) {}
    virtual void viewWillDisappear(bool /*animated*/) {}
    virtual void viewDidDisappear() {}
    virtual void viewDidLayoutSubviews() {}
    /// Before the view takes another size, in points: a rotation of the device or a resize.
    virtual void viewWillTransitionToSize(QSizeF) {}
    /// The user turns to another application; the window may still be seen.
    virtual void applicationWillResignActive() {}
    /// The last moment at which work is sure to be kept.
    virtual void applicationDidEnterBackground() {}
    /// Something is on its way to a file: the process may not end before it is there.
    virtual bool hasUnfinishedWork() const { return false; }
    /// A question stands about what would go with this screen.
    virtual bool asksAboutUnsaved() const { return false; }
    virtual void didReceiveMemoryWarning() {}
    /// The user pressed beside the sheet as which the screen is shown.
    virtual void pressedBesideSheet() {}
    /// Whether a screen that is presented lets the one below be seen, while it grows out of a
    /// picture there, say.
    virtual bool showsScreenBelow() const { return false; }

    QSizeF viewSize() const { return _viewSize; }
    void setViewSize(QSizeF points)
    {
        if (points == _viewSize)
            return;
        const bool hadSize = !_viewSize.isEmpty();
        if (hadSize)
            viewWillTransitionToSize(points);
        _viewSize = points;
        viewDidLayoutSubviews();
    }

Q_SIGNALS:
    void showsScreenBelowChanged();

private:
    QSizeF _viewSize;
};

} // namespace pelmira
