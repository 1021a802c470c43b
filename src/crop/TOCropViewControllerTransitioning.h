#pragma once

#include <QImage>
#include <QObject>
#include <QRectF>

#include <functional>

namespace pelmira {

/// The picture that grows from a thumbnail into the crop tool, or shrinks back into one. Frames
/// are points of the window; seconds are those of the tool's clock.
class TOCropViewControllerTransitioning final : public QObject {
    Q_OBJECT
    Q_PROPERTY(QImage image READ image NOTIFY imageChanged)
    Q_PROPERTY(QRectF frame READ frame NOTIFY changed)
    Q_PROPERTY(double toolAlpha READ toolAlpha NOTIFY changed)
    Q_PROPERTY(bool running READ isRunning NOTIFY changed)
public:
    using QObject::QObject;

    /// How the tool itself, all but the picture, changes with the way.
    enum class Tool { FadesIn, FadesOut };

    /// The completion is called once: by the `advance` that ends the way, by `finish`, or by
    /// another start.
    void start(Tool tool, const QImage& image, const QRectF& from, const QRectF& to, double now,
               std::function<void()> completion);
    void advance(double now);
    /// Ends the way where it is.
    void finish();
    /// Brings back a tool that has faded out.
    void showTool();
    /// Where the way ends, if the window changes meanwhile.
    void setEnd(const QRectF& to) { _to = to; }

    bool isRunning() const { return _isRunning; }
    QImage image() const { return _image; }
    QRectF frame() const { return _frame; }
    /// Stays what it was in the end, so that a tool that is gone isn't seen again.
    double toolAlpha() const { return _toolAlpha; }

Q_SIGNALS:
    void imageChanged();
    void changed();

private:
    void show(double part);

    Tool _tool = Tool::FadesIn;
    QImage _image;
    QRectF _from;
    QRectF _to;
    QRectF _frame;
    double _start = 0.0;
    double _toolAlpha = 1.0;
    bool _isRunning = false;
    std::function<void()> _completion;
};

} // namespace pelmira
