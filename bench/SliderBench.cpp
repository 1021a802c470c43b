// A drag of a slider: 60 values, one for each frame of a screen of 60 hertz, for the blur of a
// photo and for that of a shadow. How long after the last value its picture is there, and how long
// the longest time was in which nothing new was shown while dragging.

#include "Bench.h"

#include "background_editor/filters/PatternBlurHelper.h"
#include "background_editor/shadow/LayerShadow.h"
#include "platform/base/RunLoop.h"

#include <QGuiApplication>
#include <QPainter>
#include <QTimer>

#include <cmath>
#include <functional>

namespace {

using namespace pelmira;
using Clock = std::chrono::steady_clock;

constexpr int valueCount = 60;
constexpr int frame = 16; // milliseconds

struct Drag {
    double settle = 0;     ///< milliseconds
    double longestGap = 0; ///< milliseconds
    int shown = 0;
};

double since(Clock::time_point start)
{
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

/// Sends the values; `show` is handed over once and called for each picture, with whether it is the
/// last value's.
Drag drag(const std::function<void(double value)>& send,
          const std::function<void(std::function<void(bool isLast)>)>& onShown)
{
    Drag result;
    int sent = 0;
    bool isSettled = false;
    Clock::time_point lastSent;
    Clock::time_point lastShown = Clock::now();
    onShown([&](bool isLast) {
        result.longestGap = std::max(result.longestGap, since(lastShown));
        lastShown = Clock::now();
        ++result.shown;
        if (isLast && sent == valueCount) {
            result.settle = since(lastSent);
            isSettled = true;
        }
    });
    QTimer timer;
    timer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&timer, &QTimer::timeout, [&] {
        ++sent;
        lastSent = Clock::now();
        if (sent == valueCount)
            timer.stop();
        send(static_cast<double>(sent) / valueCount);
    });
    timer.start(frame);
    while (!isSettled)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return result;
}

QImage picture(int width, int height)
{
    QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    for (int i = 0; i < 400; ++i) {
        painter.setBrush(QColor::fromHsv(i * 37 % 360, 200, 220));
        painter.drawEllipse(QPointF(i * 7919 % width, i * 104729 % height), width / 16.0,
                            height / 16.0);
    }
    return image;
}

Drag dragPhotoBlur()
{
    const auto helper = std::make_shared<PatternBlurHelper>(picture(1024, 768), false);
    std::function<void(bool)> shown;
    const auto send = [&](double value) {
        const double blur = std::ceil(38.4 * value);
        helper->doFilterWithBlur(blur, 0, 0,
                                 [&shown, isLast = value == 1.0](auto&&...) { shown(isLast); });
    };
    return drag(send, [&](auto block) { shown = std::move(block); });
}

Drag dragShadowBlur()
{
    LayerShadow shadow;
    shadow.setScreenScale(3.0);
    shadow.setSize({300, 400});
    shadow.setPicture(picture(2400, 3200));
    // The panel is open, and a little shadow there.
    shadow.setValues({Qt::black, {4, 4}, 0.5F, 0.1});
    while (shadow.image().isNull())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    const double widest = 300 + 2 * 3.4 * 15.0;
    const auto send = [&](double value) {
        shadow.setValues({Qt::black, {4, 4}, 0.5F, 15.0 * value});
    };
    qint64 image = shadow.image().cacheKey();
    return drag(send, [&](auto block) {
        QObject::connect(&shadow, &LayerShadow::changed, [&shadow, &image, widest, block] {
            // Values alone are told too; what counts is another picture.
            if (shadow.image().isNull() ||
                std::exchange(image, shadow.image().cacheKey()) == shadow.image().cacheKey())
                return;
            block(shadow.frame().width() > widest);
        });
    });
}

void print(const char* name, const Drag& drag)
{
    std::printf("%-12s %9.1f %12.1f %7d\n", name, drag.settle, drag.longestGap, drag.shown);
}

} // namespace

int main(int argc, char** argv)
{
    QGuiApplication application(argc, argv);
    std::printf("%-12s %9s %12s %7s\n", "", "settle/ms", "longest/ms", "shown");
    const Drag photo = dragPhotoBlur();
    print("photo blur", photo);
    const Drag shadow = dragShadowBlur();
    print("shadow blur", shadow);
    bench::printFigure("blur_drag_settle_ms", photo.settle);
    bench::printFigure("shadow_drag_longest_gap_ms", shadow.longestGap);
}
