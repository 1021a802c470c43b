#include "crop/TOCropViewController.h"
#include "intake/ZKLPhotoPicker.h"
#include "intake/ZKLPhotoPickerHelper.h"
#include "shell/FakeStack.h"
#include "support/FakeCamera.h"
#include "support/Test.h"

namespace pelmira {
namespace {

struct PhotoPickerHelperTest : testing::Test {
    PhotoPickerHelperTest() { stack.add(std::make_shared<test::PlainScreen>(), false); }

    void choose() { helper.choosePhotoWithPresentingVC(stack, keep); }
    void take() { helper.takePhotoWithPresentingVC(stack, keep); }
    void select(const QImage& image) { stack.shown<ZKLPhotoPicker>().selectionBlock(image); }
    void shoot(const QImage& image) { stack.shown<CameraPicker>().didFinishPickingMedia(image); }
    TOCropViewController& tool() { return stack.shown<TOCropViewController>(); }
    void crop() { tool().didCropToImage(tool().image(), {}); }

    const QImage photo = plainImage({1000, 800}, Qt::darkCyan);
    QImage picked;
    const ZKLPhotoPickerHelper::Completion keep = [this](const QImage& image) { picked = image; };
    test::FakeStack stack;
    ZKLPhotoPickerHelper helper{{{}, [] { return std::make_unique<test::FakeCamera>(); }, {}}};
};

TEST_F(PhotoPickerHelperTest, APictureIsCroppedIfItIsFromTheLibraryAndBroughtToSize)
{
    take();
    shoot(photo);
    EXPECT_EQ(picked.size(), photo.size()); // as it is
    stack.dismissViewController({}, true);
    stack.left.clear();

    choose();
    helper.maxImageDim = 500.0;
    select(photo);
    choose(); // while the screens stand: nothing begins
    EXPECT_EQ(stack.entries.size(), 3U);
    crop();
    EXPECT_EQ(picked.size(), QSize(500, 400));
    EXPECT_EQ(stack.entries.size(), 3U) << "taken away by who gets the picture";
    stack.dismissViewController({}, true);
    stack.left.clear();

    choose();
    EXPECT_FALSE(helper.maxImageDim);
    select(photo.copy(0, 0, 16, 8));
    crop();
    EXPECT_EQ(picked.size(), QSize(32, 16));
}

TEST_F(PhotoPickerHelperTest, WhoCancelsIsTakenBackAndNobodyIsTold)
{
    choose();
    select(photo);
    tool().cancelButtonTapped();
    EXPECT_NE(stack.top<ZKLPhotoPicker>(), nullptr); // the library stays
    stack.shown<ZKLPhotoPicker>().cancelButtonTapped();
    const std::function<void()> ways[] = {[this] { // cropped, as the pick before was
                                              shoot(photo);
                                              tool().cancelButtonTapped();
                                          },
                                          [this] { shoot({}); }};
    for (const auto& cancel : ways) {
        EXPECT_EQ(stack.entries.size(), 1U);
        stack.left.clear();
        take();
        cancel(); // the camera goes
    }
    EXPECT_EQ(stack.entries.size(), 1U);
    EXPECT_TRUE(picked.isNull());
}

} // namespace
} // namespace pelmira
