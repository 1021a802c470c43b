#include "platform/quick/NavigationController.h"

#include "support/Test.h"
#include "support/WaitFor.h"

#include <QQuickItem>
#include <QQuickWindow>

namespace pelmira {
namespace {

class NamedScreen : public Screen, public std::enable_shared_from_this<NamedScreen> {
    Q_OBJECT

public:
    NamedScreen(QUrl layout, std::string name, std::vector<std::string>& log)
        : _layout(std::move(layout)), _name(std::move(name)), _log(log)
    {
    }
    ~NamedScreen() override { _log.push_back(_name + " gone"); }

    QUrl layoutFile() const override { return _layout; }
    void viewDidAppear(bool) override { _log.push_back(_name + " appeared"); }
    void viewDidDisappear() override { ++timesCovered; }
    void pressedBesideSheet() override { _log.push_back(_name + " beside"); }

    int timesCovered = 0;

    std::function<void(const QString&)> pressed;
    Q_INVOKABLE void press(const QString& key)
    {
        const auto self = weak_from_this();
        pressed(key);
        EXPECT_FALSE(self.expired()) << "gone while its own button was pressed";
    }

private:
    const QUrl _layout;
    const std::string _name;
    std::vector<std::string>& _log;
};

class CropScreen final : public NamedScreen {
    Q_OBJECT
    using NamedScreen::NamedScreen;
};

struct NavigationControllerTest : testing::Test {
    void SetUp() override
    {
        _layout = QUrl::fromLocalFile(_folder.write("Layout.qml", R"(import QtQuick
            Item {
                id: root
                required property QtObject screen
                Repeater {
                    model: ["H", "D", "S", "F", "B", "P"]
                    Item {
                        Shortcut {
                            sequence: modelData
                            enabled: root.enabled
                            onActivated: root.screen.press(modelData)
                        }
                    }
                }
            })"));
        _window.resize(900, 700);
        _window.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&_window));
        _navigation.setRoot(screen("home"));
        waitFor("home appeared");
    }

    template <class Kind = NamedScreen>
    std::shared_ptr<Screen> screen(const char* name)
    {
        const auto made = std::make_shared<Kind>(_layout, name, _log);
        made->pressed = [this](const QString& key) { press(key); };
        return made;
    }
    /// What the application's buttons do: home and done of the save screen, save and help of the
    /// editor, back, and what opens a photo.
    void press(const QString& key)
    {
        if (key == u'H')
            _navigation.dismissViewController([this] { _navigation.popViewController(); });
        else if (key == u'D')
            _navigation.dismissViewController({});
        else if (key == u'S')
            _navigation.presentViewController(screen("save"), ModalPresentationStyle::FullScreen);
        else if (key == u'F')
            _navigation.presentViewController(screen("help"), ModalPresentationStyle::FormSheet);
        else if (key == u'B')
            _navigation.popViewController();
        else
            _navigation.pushViewController(screen("crop"));
    }
    void waitFor(const std::string& line)
    {
        ASSERT_TRUE(test::waitFor([&] { return !_log.empty() && _log.back() == line; })) << line;
    }
    std::vector<QQuickItem*> containers() const
    {
        const auto items = _window.contentItem()->childItems();
        return {items.begin(), items.end()};
    }

    TemporaryFolder _folder;
    QUrl _layout;
    std::vector<std::string> _log;
    QQuickWindow _window;
    QQmlEngine _engine;
    NavigationController _navigation{_window, _engine};
};

TEST_F(NavigationControllerTest, DismissingTakesWhatStandsOnThePresentedScreenToo)
{
    _navigation.pushViewController(screen("editor"));
    _navigation.presentViewController(screen("camera"), ModalPresentationStyle::FullScreen);
    _navigation.pushViewController(screen("crop"));
    _log.clear();
    Screen* seenAtCompletion = nullptr;
    _navigation.dismissViewController([&] {
        seenAtCompletion = _navigation.topScreen();
        _navigation.popViewController(); // as leaving for home does
    });
    EXPECT_EQ(seenAtCompletion, nullptr); // only when the way is done
    waitFor("home appeared");
    EXPECT_NE(seenAtCompletion, nullptr);
    EXPECT_EQ(_log, (std::vector<std::string>{"camera gone", "crop gone", "editor gone",
                                              "home appeared"}));
    EXPECT_EQ(containers().size(), 1u);

    bool completed = false;
    _navigation.dismissViewController([&] { completed = true; });
    EXPECT_TRUE(completed); // nothing was presented
}

TEST_F(NavigationControllerTest, TwoQuickPressesNeverMeetHalfway)
{
    _window.requestActivate();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&_window));
    const QString keys = QStringLiteral("HDSFBP");
    for (const bool byKeys : {true, false}) // a press, or a file that another program hands over
        for (const QChar first : keys)
            for (const QChar second : keys) {
                SCOPED_TRACE((QString(first) + second + (byKeys ? u'k' : u' ')).toStdString());
                _navigation.setRoot(screen("home"));
                _navigation.pushViewController(screen("editor"));
                _navigation.presentViewController(screen("save"),
                                                  ModalPresentationStyle::FullScreen);
                QCoreApplication::processEvents();
                for (const QChar key : {first, second})
                    byKeys ? QTest::keyClick(&_window, key.toLatin1()) : press(key);
                if (byKeys && first == u'H') {
                    _navigation.dismissViewController({}); // settles, and finds nothing to dismiss
                    EXPECT_EQ(containers().size(), 1u) << "left for home, yet led elsewhere";
                }
                _navigation.setRoot(screen("end"));
                EXPECT_EQ(containers().size(), 1u);
                EXPECT_TRUE(containers()[0]->isVisible() && containers()[0]->isEnabled());
            }
}

TEST_F(NavigationControllerTest, TheFirstFrameOfASizeIsFollowedByAnother)
{
    int frames = 0;
    const QObject thisTest; // the window outlives it, and draws once more
    QObject::connect(&_window, &QQuickWindow::frameSwapped, &thisTest, [&] { ++frames; });
    _window.resize(500, 480);
    EXPECT_TRUE(test::waitFor([&] { return frames >= 2; }));
}

TEST_F(NavigationControllerTest, ASheetLeavesTheScreenBelowVisibleButInert)
{
    const auto* home = static_cast<NamedScreen*>(_navigation.topScreen());
    _navigation.presentViewController(screen("help"), ModalPresentationStyle::FormSheet);
    waitFor("help appeared");
    ASSERT_EQ(containers().size(), 2u);
    EXPECT_TRUE(containers()[0]->isVisible());
    EXPECT_FALSE(containers()[0]->isEnabled());
    const QRectF frame = NavigationController::formSheetFrame(_window.size());
    EXPECT_EQ(_navigation.topScreen()->viewSize(), frame.size());
    QTest::mouseClick(&_window, Qt::LeftButton, {}, QPoint(5, 5));
    waitFor("help beside");

    _navigation.popViewController();
    waitFor("home appeared");
    EXPECT_TRUE(containers()[0]->isEnabled());
    EXPECT_EQ(home->timesCovered, 0);

    _window.resize(390, 844);
    ASSERT_TRUE(test::waitFor([&] { return _window.width() == 390; }));
    _navigation.presentViewController(screen("phone"), ModalPresentationStyle::FormSheet);
    waitFor("phone appeared");
    EXPECT_EQ(_navigation.topScreen()->viewSize(), QSizeF(390, 844));
    EXPECT_FALSE(containers()[0]->isVisible());
    EXPECT_EQ(home->timesCovered, 1);
}

TEST_F(NavigationControllerTest,
       ScreensTakenFromBelowAreNotGoneBackToAndOnesThatComeWhileDisabledAreInert)
{
    _navigation.pushViewController(screen<CropScreen>("crop"));
    _navigation.pushViewController(screen("editor"));
    _navigation.removeBelowTop<CropScreen>();
    waitFor("editor appeared");
    _navigation.popViewController();
    waitFor("home appeared");
    EXPECT_EQ(_log, (std::vector<std::string>{"home appeared", "crop gone", "editor appeared",
                                              "editor gone", "home appeared"}));

    _navigation.setEnabled(false);
    _navigation.pushViewController(screen("editor"));
    waitFor("editor appeared");
    EXPECT_FALSE(containers().back()->isEnabled());
    EXPECT_FALSE(containers().back()->hasActiveFocus());
    _navigation.setEnabled(true);
    EXPECT_TRUE(containers().back()->isEnabled());
    // The one in front takes no touches: whoever is below isn't in front.
    EXPECT_EQ(_navigation.touchResponders(), std::vector<TouchResponder*>{nullptr});
}

TEST_F(NavigationControllerTest, ALayoutThatDoesNotLoadIsToldAndLeavesTheStackAsItIs)
{
    int told = 0;
    _navigation.layoutFailedBlock = [&] { ++told; };
    const Screen* home = _navigation.topScreen();
    _layout = QUrl::fromLocalFile(_folder.write(
        "Broken.qml", "import QtQuick\nItem { required property QtObject screen; NoSuchType {} }"));
    const std::function<void()> ways[] = {
        [&] { _navigation.pushViewController(screen("broken")); },
        [&] {
            _navigation.presentViewController(screen("broken"), ModalPresentationStyle::FormSheet);
        },
        [&] {
            _layout = QUrl(QStringLiteral("qrc:/none.qml"));
            _navigation.pushViewController(screen("broken"));
        },
    };
    for (const auto& lead : ways) {
        lead();
        _navigation.dismissViewController({});
        EXPECT_EQ(_navigation.topScreen(), home);
    }
    EXPECT_EQ(told, 3);
    _navigation.setRoot(screen("broken")); // the first of all: nothing is left to show
    EXPECT_EQ(told, 4);
    EXPECT_EQ(_navigation.topScreen(), nullptr);
    _navigation.setEnabled(true);
    _navigation.popViewController();
    EXPECT_TRUE(_navigation.touchResponders().empty());
}

} // namespace
} // namespace pelmira

#include "NavigationControllerTest.moc"
