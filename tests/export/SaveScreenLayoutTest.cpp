#include "export/SaveViewController.h"
#include "support/ShownScreen.h"

namespace pelmira {
namespace {

/// The save screen's layout with the real screen, HEIF on offer.
struct SaveScreenLayout : testing::Test {
    void open(QSize size)
    {
        shown.reset();
        screen = std::make_shared<SaveViewController>(
            defaults, PhotoLibrary(), ShareFile(folder.path()),
            SaveViewController::HeifEncoder{[] { return true; }, {}});
        shown = std::make_unique<test::ShownScreen>(screen, size);
    }
    QQuickItem* heifSwitch()
    {
        for (QQuickItem* item : shown->itemsOf("QQuickSwitch"))
            if (item->property("name").toString() == screen->useHEIFLabel())
                return item;
        return nullptr;
    }

    const TemporaryFolder folder;
    UserDefaults defaults{folder.path("preferences.json")};
    std::shared_ptr<SaveViewController> screen;
    std::unique_ptr<test::ShownScreen> shown;
};

TEST_F(SaveScreenLayout, NothingLiesOverTheSwitchOrItsLabel)
{
    for (const QSize size : {QSize(480, 320), QSize(390, 844), QSize(844, 390), QSize(1280, 800)}) {
        SCOPED_TRACE(size.width());
        open(size);
        QQuickItem* toggle = heifSwitch();
        ASSERT_NE(toggle, nullptr);
        const QRectF frame = shown->frameOf(toggle);
        QRectF page;
        for (QQuickItem* item : shown->items()) {
            if (item->inherits("QQuickFlickable"))
                page = shown->frameOf(item->property("contentItem").value<QQuickItem*>())
                           .united(QRectF(0, 0, 0, item->property("contentHeight").toDouble()));
            const QString text = item->property("text").toString();
            if (!text.isEmpty() && item != toggle && !toggle->isAncestorOf(item)) {
                EXPECT_FALSE(shown->frameOf(item).intersects(frame)) << text.toStdString();
            }
        }
        EXPECT_LE(shown->frameOf(toggle->parentItem()->parentItem()).bottom(), page.bottom());
    }
}

TEST_F(SaveScreenLayout, TheSwitchFollowsThePreferenceAfterAnyPresses)
{
    open({1280, 800});
    QQuickItem* toggle = heifSwitch();
    const auto isShownOn = [&] { return toggle->property("checked").toBool(); };
    EXPECT_FALSE(isShownOn());
    shown->click(toggle);
    EXPECT_TRUE(isShownOn() && screen->useHeifSwitch()->isSelected());
    toggle->forceActiveFocus(Qt::TabFocusReason);
    shown->key(Qt::Key_Return);
    EXPECT_FALSE(isShownOn() || screen->useHeifSwitch()->isSelected());
    screen->useHeifSwitch()->setSelected(true);
    EXPECT_TRUE(isShownOn()) << "deaf to its model";
}

} // namespace
} // namespace pelmira
