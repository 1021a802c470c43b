#include "controls/ZKLConfigManager.h"
#include "help/ZKLHelpController.h"
#include "support/HttpServer.h"
#include "support/Test.h"
#include "support/WaitFor.h"

#include <QRegularExpression>

namespace pelmira {
namespace {

struct HelpControllerTest : testing::Test {
    void load(const QUrl& url)
    {
        config.setHelpUrl(url);
        help = std::make_unique<ZKLHelpController>(config);
        help->viewDidLoad();
    }
    void loadFromHost(const QByteArray& status, const QByteArray& body)
    {
        host.answer = test::HttpServer::response(status, body);
        load(host.url("/app-help/pelmira/help.html"));
        EXPECT_EQ(help->title(), u"Loading..."_s);
        EXPECT_TRUE(help->isLoading());
        ASSERT_TRUE(waitFor([this] { return !help->isLoading(); }));
        EXPECT_EQ(help->title(), u"Help"_s);
    }

    const TemporaryFolder folder;
    UserDefaults defaults{folder.path("preferences.json")};
    ZKLConfigManager config{defaults};
    test::HttpServer host;
    std::unique_ptr<ZKLHelpController> help;
};

TEST_F(HelpControllerTest, ShowsTheShippedPagesWhoseLinksAndPicturesAllExist)
{
    EXPECT_EQ(config.helpUrl(), QUrl(u"qrc:/help/help.html"_s));
    for (const QString& name : {u"help"_s, u"help_de"_s, u"help_es"_s, u"help_fr"_s}) {
        load(QUrl(u"qrc:/help/%1.html"_s.arg(name)));
        EXPECT_FALSE(help->isLoading() || help->alert()->isOpen());
        int last = -1;
        int links = 0;
        static const QRegularExpression link(u"href=\"([^\"]*)\""_s);
        for (auto match = link.globalMatch(help->page()); match.hasNext(); ++links) {
            const QString target = match.next().captured(1);
            const int position = help->positionOfLink(target);
            EXPECT_GT(position, last) << target.toStdString() << " in " << name.toStdString();
            last = position;
        }
        EXPECT_GT(links, 5);
        EXPECT_EQ(help->positionOfLink(u"https://example.org"_s), -1);
        static const QRegularExpression picture(u"src=\"qrc([^\"]*)\""_s);
        for (auto match = picture.globalMatch(help->page()); match.hasNext();) {
            const QString file = match.next().captured(1);
            EXPECT_TRUE(QFile::exists(file)) << file.toStdString();
        }
    }
}

TEST_F(HelpControllerTest, FetchesAPageWithoutWhatWouldAskForAnotherFile)
{
    loadFromHost("200 OK", "<h1>Cut</h1><IMG src=\"file:///etc/hosts\"><a name=\"x\">here</a>"
                           "<im<img>g src=\"a\"><p style=\"background-image: url(b)\">1 < 2<img");
    EXPECT_EQ(help->page(), u"<h1>Cut</h1> <a name=\"x\">here</a> g src=\"a\"><p>1 &lt; 2 "_s);
    EXPECT_EQ(help->positionOfLink(u"#x"_s), 4);
    // The toolkit decodes names, too, and opens whatever file a style or a link names.
    loadFromHost("200 OK", "a<style>@import 'file:///dev/zero';</style><!-- <b> -->"
                           "<l&#105;nk rel=stylesheet href=\"file:///dev/zero\">"
                           "<p \"style\"=\"x\" NAME='\"'>b<TITLE>t</title>");
    EXPECT_EQ(help->page(), u"a    <p name=\"&quot;\">b  "_s);
    loadFromHost("200 OK", QByteArray("<table><tr><td>").repeated(100)); // each doubles the time
    EXPECT_EQ(help->page().count(u"<table>"_s), 1);
    loadFromHost("200 OK", "ab<!-- c");
    EXPECT_EQ(help->page(), u"ab "_s);
    EXPECT_FALSE(help->alert()->isOpen());
}

TEST_F(HelpControllerTest, EveryFailureIsTold)
{
    loadFromHost("404 Not Found", "gone");
    EXPECT_TRUE(help->alert()->isOpen());
    EXPECT_EQ(help->alert()->title(), u"Sorry something wrong"_s);
    EXPECT_EQ(help->page(), QString());
    loadFromHost("200 OK", QByteArray(8 << 20, 'x')); // too much to be a page
    EXPECT_TRUE(help->alert()->isOpen());
    EXPECT_EQ(help->page(), QString());
    for (const QUrl& url : {QUrl(), QUrl(u"file:///etc/hosts"_s)}) {
        load(url);
        EXPECT_FALSE(help->isLoading());
        EXPECT_TRUE(help->alert()->isOpen());
    }
    loadFromHost("200 OK", "x");
    help.reset(); // closed while nothing, or something, is under way
    load(QUrl(u"http://127.0.0.1:1/"_s));
    help.reset();
}

} // namespace
} // namespace pelmira
