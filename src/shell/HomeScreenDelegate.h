#pragma once

class QImage;

namespace pelmira {

class Screen;

/// Where the first screen leads.
class HomeScreenDelegate {
public:
    virtual ~HomeScreenDelegate() = default;
    virtual void showLibrary() = 0;
    virtual void showCamera() = 0;
    virtual bool canShowSettings() const = 0;
    virtual void showSettings() = 0;
    virtual void cropPhoto(const QImage& photo) = 0;
    /// The photo of the saved work; its mask is still to be read.
    virtual void goOnWithSavedWork(const QImage& image) = 0;
    virtual bool isOnTop(const Screen& screen) const = 0;
};

} // namespace pelmira
