#include "promotion/ZKLCrossPromoteManager.h"
#include "promotion/ZKLCrossPromoteVC.h"
#include "shell/FakeStack.h"
#include "support/HttpServer.h"
#include "support/Test.h"
#include "support/WaitFor.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace pelmira {
namespace {

using test::HttpServer;

const auto redPng = [](QSize size) { return encoded(plainImage(size, Qt::red), "png"); };
TEST(CrossPromoteEntryTest, ValuesOfAWrongTypeAreMissing)
{
    for (const auto& [json, isShown, hasStorePage] :
         std::initializer_list<std::tuple<const char*, bool, bool>>{
             {R"({"name":"A","icon":"http://a/i","appleId":12})", true, true},
             {R"({"name":"A","icon":"http://a/i","appleId":"12"})", true, false},
             {R"({"name":"A","icon":"http://a/i","appleId":1.5})", true, false},
             {R"({"name":"A","icon":"http://a/i","appleId":-1})", true, false},
             {R"({"name":"A","icon":"http://a/i","appleId":1e300})", true, false},
             {R"({"name":"A","icon":"http://a/i"})", false, false},
             {R"({"name":["A"],"icon":"http://a/i","appleId":12})", false, true},
             {R"({"name":"A","icon":7,"appleId":12})", false, true},
             {R"({})", false, false},
         }) {
        const auto entry = CrossPromoteEntry::fromJson(QJsonDocument::fromJson(json).object());
        EXPECT_EQ(entry.isShown, isShown) << json;
        EXPECT_EQ(entry.appleId.has_value(), hasStorePage) << json;
    }
}

struct CrossPromoteTest : testing::Test {
    void SetUp() override
    {
        manager = std::make_unique<ZKLCrossPromoteManager>(stack, [](const QJsonObject& config) {
            return ZKLCrossPromoteVC::initWithConfig(config, {});
        });
    }
    void open(const QJsonObject& config)
    {
        screen = ZKLCrossPromoteVC::initWithConfig(
            config, {[](qint64 id, const QString& code) {
                         return id == 0 ? QUrl() : QUrl(u"https://s/%1/%2"_s.arg(id).arg(code));
                     },
                     [this](const QUrl& page, std::function<void(bool)> completion) {
                         opened << page.toString();
                         pageShown = std::move(completion);
                     }});
    }
    QJsonObject app(const char* name, const QJsonValue& appleId) const
    {
        return {{u"name"_s, QLatin1String(name)},
                {u"icon"_s, host.url("/icon.png").toString()},
                {u"appleId"_s, appleId},
                {u"campaign-code"_s, u"c"_s}};
    }
    CrossPromoteItem& item(int index) const
    {
        return *qobject_cast<CrossPromoteItem*>(screen->appEntries()[index]);
    }

    HttpServer host;
    test::FakeStack stack;
    std::unique_ptr<ZKLCrossPromoteManager> manager;
    std::shared_ptr<ZKLCrossPromoteVC> screen;
    QStringList opened;
    std::function<void(bool)> pageShown;
};

TEST_F(CrossPromoteTest, TheListIsFetchedOnceAndShownOverTheTopScreen)
{
    int skipped = 0;
    EXPECT_FALSE(manager->showCrossPromoteIfConfigReady());
    manager->showCrossPromote([&] { ++skipped; });
    EXPECT_EQ(skipped, 1);
    for (const char* none : {"{}", "[1]", R"({"apps": [)"}) {
        host.answer = HttpServer::response("200 OK", none);
        manager->configureCrossPromoteWithConfigUrl(host.url());
        ASSERT_TRUE(waitFor([&] { return !manager->isFetching(); })) << none;
        EXPECT_FALSE(manager->isConfigReady()) << none;
    }
    host.requests = 0;
    host.answer = HttpServer::response("200 OK", R"({"apps": []})");
    manager->configureCrossPromoteWithConfigUrl(host.url());
    manager->configureCrossPromoteWithConfigUrl(host.url());
    ASSERT_TRUE(waitFor([&] { return manager->isConfigReady(); }));
    manager->configureCrossPromoteWithConfigUrl(host.url());
    EXPECT_FALSE(manager->isFetching());
    EXPECT_EQ(host.requests, 1);

    EXPECT_FALSE(manager->showCrossPromoteIfConfigReady()); // there is no screen
    open({});
    stack.pushViewController(screen);
    EXPECT_TRUE(manager->showCrossPromoteIfConfigReady());
    manager->showCrossPromote([&] { ++skipped; });
    EXPECT_EQ(stack.entries.size(), 3U);
    EXPECT_EQ(skipped, 1);
}

TEST_F(CrossPromoteTest, IconsComeForThePageThatIsSeenAndTheNext)
{
    QJsonArray apps;
    for (int i = 0; i < 20; ++i)
        apps << (i == 1 ? QJsonObject() : app("A", 1));
    host.answer = HttpServer::response("200 OK", redPng({400, 200}));
    open({{u"mainApp"_s, app("M", 1)}, {u"apps"_s, apps}});
    EXPECT_EQ(screen->numPages(), 4);
    screen->viewDidLoad();
    const auto has = [this](int index) { return !item(index).icon().isNull(); };
    ASSERT_TRUE(
        waitFor([&] { return !screen->mainEntry()->icon().isNull() && has(0) && has(11); }));
    EXPECT_EQ(item(0).icon().size(), QSize(180, 90));
    EXPECT_FALSE(has(12) || has(1));
    screen->scrolled(320.0, 320.0);
    EXPECT_EQ(screen->currentPage(), 1);
    ASSERT_TRUE(waitFor([&] { return has(12) && has(17); }));
    EXPECT_FALSE(has(18));
    screen->pageControlChangedPage(99);
    EXPECT_EQ(screen->currentPage(), 3);
    EXPECT_EQ(screen->offsetOfPage(4, 320.0), 960.0); // a key at the last page stays
    screen.reset();                                   // with icons on the way
}

TEST_F(CrossPromoteTest, AnIconThatIsNoneHasFailed)
{
    for (const QByteArray& body :
         {QByteArray("no picture"), redPng({2000, 2000}), QByteArray(1 << 20, 'x')}) {
        host.answer = HttpServer::response("200 OK", body);
        open({{u"apps"_s, QJsonArray{app("A", 1)}}});
        screen->viewDidLoad();
        EXPECT_TRUE(waitFor([this] { return item(0).hasIconFailed(); }))
            << body.left(20).toStdString();
        EXPECT_TRUE(item(0).icon().isNull());
    }
}

TEST_F(CrossPromoteTest, AnEntryLeadsToItsPageInTheStore)
{
    open({{u"mainApp"_s, app("M", 7)},
          {u"apps"_s, QJsonArray{app("A", u"8"_s), app("B", 9), app("C", 0)}}});
    for (const int tag : {-1, 0, 3})
        screen->appEntryButtonPressed(tag);
    EXPECT_EQ(opened, QStringList());
    screen->mainAppDownloadButtonPressed();
    screen->appEntryButtonPressed(1);
    EXPECT_EQ(opened, QStringList({u"https://s/7/c"_s, u"https://s/9/c"_s}));
    pageShown(true);
    EXPECT_FALSE(screen->progressHUD()->isVisible());
    pageShown(false);
    EXPECT_TRUE(screen->progressHUD()->isError());
    screen->progressHUD()->dismiss();
    screen->appEntryButtonPressed(2); // no page in the store
    EXPECT_TRUE(screen->progressHUD()->isError());
    screen.reset();
    pageShown(false); // too late for anybody
}

} // namespace
} // namespace pelmira
