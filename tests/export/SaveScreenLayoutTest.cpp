#include "export/SaveViewController.h"
#include "platform/quick/PlatformTypes.h"
#include "support/TemporaryFolder.h"

#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace pelmira {
namespace {

/// The save screen's layout with the real screen, HEIF on offer.
struct SaveScreenLayout : testing::Test {
    static void SetUpTestSuite() { registerPlatformTypes(); }

    void open(QSize size)
    {
        view.reset();
        screen = std::make_shared<SaveViewController>(
            defaults, PhotoLibrary(), ShareFile(folder.path()),
            SaveViewController::HeifEncoder{[] { return true; }, {}});
        view = std::make_unique<QQuickView>();
        QObject::connect(view->engine(), &QQmlEngine::warnings, [](const QList<QQmlError>& list) {
            for (const QQmlError& error : list)
                ADD_FAILURE() << error.toString().toStdString();
        });
        view->setResizeMode(QQuickView::SizeRootObjectToView);
        view->resize(size);
        QQmlEngine::setObjectOwnership(screen.get(), QQmlEngine::CppOwnership);
        view->setInitialProperties(
            {{QStringLiteral("screen"), QVariant::fromValue<QObject*>(screen.get())}});
        screen->viewDidLoad();
        view->setSource(screen->layoutFile());
        ASSERT_EQ(view->status(), QQuickView::Ready);
        view->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(view.get()));
        view->requestActivate();
        ASSERT_TRUE(QTest::qWaitForWindowActive(view.get()));
    }
    void itemsUnder(QQuickItem* item, std::vector<QQuickItem*>& found) const
    {
        if (!item->isVisible())
            return;
        found.push_back(item);
        for (QQuickItem* child : item->childItems())
            itemsUnder(child, found);
    }
    std::vector<QQuickItem*> items() const
    {
        std::vector<QQuickItem*> all;
        itemsUnder(view->rootObject(), all);
        return all;
    }
    QQuickItem* heifSwitch() const
    {
        for (QQuickItem* item : items())
            if (item->inherits("QQuickSwitch"))
                return item;
        return nullptr;
    }
    static QRectF frameOf(QQuickItem* item) { return item->mapRectToScene(item->boundingRect()); }

    const test::TemporaryFolder folder;
    UserDefaults defaults{folder.path("preferences.json")};
    std::shared_ptr<SaveViewController> screen;
    std::unique_ptr<QQuickView> view;
};

TEST_F(SaveScreenLayout, NothingLiesOverTheSwitchOrItsLabel)
{
    for (const QSize size : {QSize(480, 320), QSize(390, 844), QSize(844, 390), QSize(1280, 800)}) {
        SCOPED_TRACE(size.width());
        open(size);
        QQuickItem* toggle = heifSwitch();
        ASSERT_NE(toggle, nullptr);
        const QRectF frame = frameOf(toggle);
        QRectF page;
        for (QQuickItem* item : items()) {
            if (item->inherits("QQuickFlickable"))
                page = frameOf(item->property("contentItem").value<QQuickItem*>())
                           .united(QRectF(0, 0, 0, item->property("contentHeight").toDouble()));
            const QString text = item->property("text").toString();
            if (!text.isEmpty() && item != toggle && !toggle->isAncestorOf(item)) {
                EXPECT_FALSE(frameOf(item).intersects(frame)) << text.toStdString();
            }
        }
        EXPECT_LE(frameOf(toggle->parentItem()->parentItem()).bottom(), page.bottom());
    }
}

TEST_F(SaveScreenLayout, TheSwitchFollowsThePreferenceAfterAnyPresses)
{
    open({1280, 800});
    QQuickItem* toggle = heifSwitch();
    ASSERT_NE(toggle, nullptr);
    const auto isShownOn = [&] { return toggle->property("checked").toBool(); };
    EXPECT_FALSE(isShownOn());
    QTest::mouseClick(view.get(), Qt::LeftButton, {}, frameOf(toggle).center().toPoint());
    EXPECT_TRUE(isShownOn() && screen->useHeifSwitch()->isSelected());
    toggle->forceActiveFocus(Qt::TabFocusReason);
    QTest::keyClick(view.get(), Qt::Key_Return);
    EXPECT_FALSE(isShownOn() || screen->useHeifSwitch()->isSelected());
    screen->useHeifSwitch()->setSelected(true);
    EXPECT_TRUE(isShownOn()) << "deaf to its model";
}

} // namespace
} // namespace pelmira
