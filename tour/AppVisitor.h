#pragma once

#include "EditorScreen.h"
#include "Visitor.h"
#include "shell/AppDelegate.h"

#include <QPointF>
#include <QSize>
#include <QString>

#include <functional>

namespace pelmira {

class EditBackgroundVC;
class SaveViewController;

/// A visitor who knows the application's screens.
class AppVisitor : protected Visitor {
public:
    AppVisitor(AppDelegate& application, QString folder, int firstPicture);

protected:
    void launch(QSize windowSize);
    /// What carries the text of the key, once it is scrolled into sight.
    void tapText(const char* key);
    /// Patiently.
    void waitFor(const std::function<bool()>& condition, const char* what);
    template <class Kind>
    Kind* waitForScreen(const char* what);
    void waitForEditor();
    void waitForFill();
    /// From the save screen.
    void openBackgroundEditor();
    void saveAs(const char* button, const char* resolution);

    template <class Kind>
    Kind* topScreen() const;
    EditorScreen editor() const;
    SaveViewController* saveView() const;
    EditBackgroundVC* backgroundEditor() const;
    /// From a share of the photo's width and height to a point of the window.
    QPointF onPhoto(double x, double y) const;
    /// The same with the canvas of the background editor.
    QPointF onCanvas(double x, double y) const;
    /// The middle of the dial.
    QPointF dial() const;

    AppDelegate& _application;
};

template <class Kind>
Kind* AppVisitor::topScreen() const
{
    return qobject_cast<Kind*>(_application.navigation().topScreen());
}

template <class Kind>
Kind* AppVisitor::waitForScreen(const char* what)
{
    waitFor([this] { return topScreen<Kind>() != nullptr; }, what);
    settle();
    return topScreen<Kind>();
}

} // namespace pelmira
