#include "intake/CameraPicker.h"

#include "platform/camera/YuvImage.h"
#include "support/FakeCamera.h"
#include "support/Test.h"

namespace pelmira {
namespace {

using State = CameraPicker::State;

const CameraDevice back{"1", QStringLiteral("Rear"), CameraPosition::Back};
const CameraDevice macro{"2", QStringLiteral("Macro"), CameraPosition::Back};
const CameraDevice front{"3", QStringLiteral("Front"), CameraPosition::Front};
const CameraDevice webcam{"4", QStringLiteral("Webcam"), CameraPosition::Unknown};

struct CameraPickerTest : testing::Test {
    CameraPickerTest()
    {
        camera->plugged = {front, back, macro};
        picker.didFinishPickingMedia = [this](const QImage& image) { photos.append(image); };
        picker.didCancel = [this] { ++cancelled; };
    }
    void frame() { Q_EMIT camera->frame(plainImage({64, 48}, Qt::red)); }
    void picture() { Q_EMIT camera->captured(plainImage({640, 480}, Qt::red)); }
    void goLive()
    {
        picker.viewDidAppear(false);
        EXPECT_EQ(picker.state(), State::Starting);
        frame();
        EXPECT_EQ(picker.state(), State::Live);
    }

    test::FakeCamera* camera = new test::FakeCamera;
    CameraPicker picker{[this] { return std::unique_ptr<Camera>(camera); }};
    QList<QImage> photos;
    int cancelled = 0;
};

TEST_F(CameraPickerTest, OnePressOfTheShutterOnePhoto)
{
    goLive();
    picker.shutterButtonTapped();
    picker.shutterButtonTapped();
    EXPECT_EQ(camera->captures, 1);
    EXPECT_FALSE(picker.canSwitch());
    picture();
    picture();
    ASSERT_EQ(photos.size(), 1);
    EXPECT_EQ(photos[0].size(), QSize(640, 480));
    picker.shutterButtonTapped(); // while the next screen moves in
    EXPECT_EQ(camera->captures, 1);

    picker.viewWillDisappear(false);
    EXPECT_TRUE(camera->running.isEmpty());
    EXPECT_TRUE(picker.frame().isNull());
    goLive();
    picker.shutterButtonTapped();
    picture();
    EXPECT_EQ(photos.size(), 2);
}

TEST_F(CameraPickerTest, AFailedPhotoComesBackToLiveAndLeavingDropsTheOneUnderWay)
{
    goLive();
    picker.shutterButtonTapped();
    Q_EMIT camera->captureFailed();
    EXPECT_EQ(picker.state(), State::Live);
    EXPECT_FALSE(picker.message().isEmpty());
    picture(); // after all, but too late
    EXPECT_TRUE(photos.isEmpty());
    picker.shutterButtonTapped();
    EXPECT_TRUE(picker.message().isEmpty());
    EXPECT_EQ(camera->captures, 2);

    picker.cancelButtonTapped();
    EXPECT_EQ(cancelled, 1);
    picture();
    frame();
    EXPECT_TRUE(camera->running.isEmpty());

    picker.viewWillDisappear(false);
    goLive();
    picker.shutterButtonTapped();
    picker.applicationDidEnterBackground();
    EXPECT_TRUE(camera->running.isEmpty());
    picture();
    EXPECT_TRUE(photos.isEmpty());
    camera->plug({back});
    EXPECT_TRUE(camera->running.isEmpty());
    picker.applicationWillEnterForeground();
    EXPECT_EQ(camera->running, back.identifier);
}

TEST_F(CameraPickerTest, CamerasComeAndGo)
{
    camera->plugged.clear();
    picker.viewDidAppear(false);
    EXPECT_EQ(picker.state(), State::NoneFound);
    EXPECT_FALSE(picker.message().isEmpty());
    camera->plug({webcam});
    EXPECT_EQ(camera->running, webcam.identifier);
    EXPECT_FALSE(picker.canSwitch());
    EXPECT_TRUE(picker.isMirrored());
    frame();
    camera->plug({webcam, front});
    EXPECT_EQ(picker.state(), State::Live);
    camera->plug({front});
    EXPECT_EQ(picker.state(), State::Failed);
    EXPECT_TRUE(camera->running.isEmpty());
    frame(); // one that was still under way
    EXPECT_EQ(picker.state(), State::Failed);
    picker.retryButtonTapped();
    EXPECT_EQ(camera->running, front.identifier);
    Q_EMIT camera->failed(QStringLiteral("busy"));
    EXPECT_EQ(picker.state(), State::Failed);
    camera->plug({});
    EXPECT_EQ(picker.state(), State::NoneFound);
}

TEST_F(CameraPickerTest, TheOtherSideIsOnePressAway)
{
    goLive();
    EXPECT_EQ(camera->running, back.identifier);
    EXPECT_FALSE(picker.isMirrored());
    picker.switchButtonTapped();
    EXPECT_EQ(camera->running, front.identifier);
    EXPECT_TRUE(picker.isMirrored());
    EXPECT_EQ(picker.state(), State::Starting);
    picker.switchButtonTapped();
    EXPECT_EQ(camera->running, back.identifier);
    camera->plug({back, macro});
    picker.switchButtonTapped();
    EXPECT_EQ(camera->running, macro.identifier);
    picker.switchButtonTapped();
    EXPECT_EQ(camera->running, back.identifier);
}

TEST_F(CameraPickerTest, ItRunsOnlyWithAccessAndOnlyIfStillWanted)
{
    std::vector<std::function<void(bool)>> answers;
    picker.requestAccessBlock = [&](std::function<void(bool)> answer) {
        answers.push_back(std::move(answer));
    };
    picker.viewDidAppear(false);
    picker.viewWillDisappear(false);
    answers[0](true);
    EXPECT_TRUE(camera->running.isEmpty());
    picker.viewDidAppear(false);
    answers[1](false);
    EXPECT_EQ(picker.state(), State::Failed);
    picker.retryButtonTapped();
    answers[2](true);
    EXPECT_EQ(camera->running, back.identifier);
}

TEST(YuvImageTest, EveryLayoutGivesTheSameColours)
{
    // Left two pixels red, right two blue, twice; BT.601, from 16 to 235.
    using Bytes = std::vector<std::uint8_t>;
    const auto image = [](YuvLayout layout, const std::array<Bytes, 3>& planes,
                          const std::array<int, 3>& strides) {
        std::array<YuvPlane, 3> spans;
        for (std::size_t i = 0; i < 3; ++i)
            spans[i] = {planes[i], strides[i]};
        return imageFromYuv(layout, YuvMatrix::Bt601, {4, 2}, spans);
    };
    const Bytes y{81, 81, 41, 41, 0, 81, 81, 41, 41}; // a byte of padding
    const Bytes yuyv{81, 90, 81, 240, 41, 240, 41, 110, 81, 90, 81, 240, 41, 240, 41, 110};
    const Bytes uyvy{90, 81, 240, 81, 240, 41, 110, 41, 90, 81, 240, 81, 240, 41, 110, 41};
    const Bytes u{90, 240};
    const Bytes v{240, 110};
    for (const QImage& each :
         {image(YuvLayout::Yuyv, {yuyv, {}, {}}, {8, 0, 0}),
          image(YuvLayout::Uyvy, {uyvy, {}, {}}, {8, 0, 0}),
          image(YuvLayout::Nv12, {y, {90, 240, 240, 110}, {}}, {5, 4, 0}),
          image(YuvLayout::Nv21, {y, {240, 90, 110, 240}, {}}, {5, 4, 0}),
          image(YuvLayout::I420, {y, u, v}, {5, 2, 2}),
          image(YuvLayout::Yv12, {y, v, u}, {5, 2, 2}),
          image(YuvLayout::I422, {y, {90, 240, 90, 240}, {240, 110, 240, 110}}, {5, 2, 2})}) {
        ASSERT_EQ(each.size(), QSize(4, 2));
        for (const QPoint at : {QPoint(0, 0), QPoint(1, 1), QPoint(2, 0), QPoint(3, 1)}) {
            const QRgb wanted = at.x() < 2 ? qRgb(255, 0, 0) : qRgb(0, 0, 255);
            EXPECT_LE(farthest(each.pixel(at), wanted), 2);
        }
    }
    EXPECT_TRUE(image(YuvLayout::I420, {y, {90}, v}, {5, 2, 2}).isNull()) << "a plane too short";
    EXPECT_TRUE(image(YuvLayout::Yuyv, {yuyv, {}, {}}, {7, 0, 0}).isNull()) << "rows too short";
}

} // namespace
} // namespace pelmira
