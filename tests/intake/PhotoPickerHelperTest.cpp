#include "crop/TOCropViewController.h"
#include "intake/ZKLPhotoPicker.h"
#include "intake/ZKLPhotoPickerHelper.h"
#include "shell/FakeStack.h"
#include "support/FakeCamera.h"
#include "support/Test.h"

#include <QTest>

namespace pelmira {
namespace {

class AnyScreen final : public Screen {
    QUrl layoutFile() const override { return {}; }
};

QImage picture(int width, int height)
{
    return test::plainImage({width, height}, Qt::darkCyan);
}

struct PhotoPickerHelperTest : testing::Test {
    PhotoPickerHelperTest() { stack.add(std::make_shared<AnyScreen>(), false); }

    void choose()
    {
        helper.choosePhotoWithPresentingVC(stack, [this](const QImage& image) { picked = image; });
    }
    void take()
    {
        helper.takePhotoWithPresentingVC(stack, [this](const QImage& image) { picked = image; });
    }
    void leave()
    {
        stack.dismissViewController({}, true);
        stack.left.clear();
    }
    void crop()
    {
        const auto& tool = stack.shown<TOCropViewController>();
        tool.didCropToImage(tool.image(), tool.image().rect());
    }

    test::FakeStack stack;
    ZKLPhotoPickerHelper helper{{{}, [] { return std::make_unique<test::FakeCamera>(); }, {}}};
    QImage picked;
};

TEST_F(PhotoPickerHelperTest, APictureFromTheLibraryIsCroppedAndBroughtToSize)
{
    choose();
    helper.maxImageDim = 500.0;
    stack.shown<ZKLPhotoPicker>().selectionBlock(picture(1000, 800));
    choose(); // while the screens stand: nothing begins
    EXPECT_EQ(stack.entries.size(), 3U);
    crop();
    EXPECT_EQ(picked.size(), QSize(500, 400));
    EXPECT_EQ(stack.entries.size(), 3U) << "taken away by who gets the picture";
    EXPECT_FALSE(helper.maxImageDim);

    leave();
    choose();
    stack.shown<ZKLPhotoPicker>().selectionBlock(picture(16, 8));
    crop();
    EXPECT_EQ(picked.size(), QSize(32, 16));
}

TEST_F(PhotoPickerHelperTest, WhoCancelsIsTakenBackAndNobodyIsTold)
{
    choose();
    stack.shown<ZKLPhotoPicker>().cancelButtonTapped();
    EXPECT_EQ(stack.entries.size(), 1U);
    stack.left.clear();

    choose();
    stack.shown<ZKLPhotoPicker>().selectionBlock(picture(100, 100));
    stack.shown<TOCropViewController>().cancelButtonTapped();
    EXPECT_NE(stack.top<ZKLPhotoPicker>(), nullptr); // the library stays
    leave();

    take(); // cropped, as the pick before was
    stack.shown<CameraPicker>().didFinishPickingMedia(picture(100, 100));
    stack.shown<TOCropViewController>().cancelButtonTapped();
    EXPECT_EQ(stack.entries.size(), 1U); // the camera goes
    stack.left.clear();
    take();
    stack.shown<CameraPicker>().didFinishPickingMedia({});
    EXPECT_EQ(stack.entries.size(), 1U);
    EXPECT_TRUE(picked.isNull());
}

TEST_F(PhotoPickerHelperTest, TheCameraAloneGivesThePictureAsItIs)
{
    take();
    stack.shown<CameraPicker>().didFinishPickingMedia(picture(640, 480));
    EXPECT_EQ(picked.size(), QSize(640, 480));
}

} // namespace
} // namespace pelmira
