#include "platform/net/BoundedFetch.h"
#include "platform/net/BoundedJson.h"
#include "support/HttpServer.h"
#include "support/Test.h"
#include "support/WaitFor.h"

namespace pelmira {
namespace {

using test::HttpServer;

constexpr qint64 mostBytes = 4096;

struct BoundedFetchTest : testing::Test {
    /// What came back; nothing for a fetch that failed, and `problem` says why.
    std::optional<QByteArray> fetched(const QUrl& url, int milliseconds = 20000)
    {
        int answers = 0;
        std::optional<QByteArray> result;
        fetch = std::make_unique<BoundedFetch>(
            network, url, FetchLimits{mostBytes, milliseconds},
            [&](std::optional<QByteArray> bytes, const QString& why) {
                ++answers;
                result = std::move(bytes);
                problem = why;
                fetch.reset(); // an owner may let go of it at once
            });
        EXPECT_EQ(answers, 0) << "never within the call";
        EXPECT_TRUE(QTest::qWaitFor([&] { return answers > 0; }, 30000));
        EXPECT_EQ(answers, 1);
        EXPECT_EQ(result.has_value(), problem.isEmpty());
        return result;
    }

    QNetworkAccessManager network;
    HttpServer server;
    std::unique_ptr<BoundedFetch> fetch;
    QString problem;
};

TEST_F(BoundedFetchTest, TakesAWholeAnswerHoweverItIsCutAndNoWrongOrHugeOne)
{
    using Manner = HttpServer::Manner;
    const auto ok = [](const QByteArray& body) { return HttpServer::response("200 OK", body); };
    const QByteArray most(mostBytes, 'x');
    const QByteArray start = "HTTP/1.1 200 OK\r\n";
    const struct {
        QByteArray answer;
        std::optional<QByteArray> body;
        Manner manner = Manner::AtOnce;
        QString why = {};
    } cases[] = {
        {ok(most), most},
        {start + "Transfer-Encoding: chunked\r\n\r\n3\r\nabc\r\n2\r\nde\r\n0\r\n\r\n", "abcde"},
        {ok("byte by byte"), "byte by byte", Manner::ByteByByte},
        {ok(""), ""},
        // What is packed although that wasn't asked for is left packed.
        {start + "Content-Encoding: gzip\r\nConnection: close\r\n\r\n\x1f\x8b\x08", "\x1f\x8b\x08"},
        {"no header at all", {}},
        {"", {}},
        {HttpServer::response("404 Not Found", "gone"), {}},
        {HttpServer::response("500 Broken", "oops"), {}},
        {start + "Content-Length: 100\r\n\r\nends too early", {}},
        {ok(most + 'x'), {}, Manner::AtOnce, u"too large"_s},
        {start + "Content-Length: 999999999999\r\n\r\n", {}, Manner::AtOnce, u"too large"_s},
        {start + "Connection: close\r\n\r\n", {}, Manner::Endlessly},
        {start + "Transfer-Encoding: chunked\r\n\r\n", {}, Manner::Endlessly},
    };
    for (const auto& [answer, body, manner, why] : cases) {
        server.answer = answer;
        server.manner = manner;
        EXPECT_EQ(fetched(server.url()), body) << answer.left(80).toStdString();
        EXPECT_TRUE(server.request.contains("Accept-Encoding: identity"));
        EXPECT_TRUE(problem.contains(why));
    }
}

TEST_F(BoundedFetchTest, WhereNothingAnswersOrNothingMayBeAskedItFails)
{
    const QUrl closed = server.url();
    server.close();
    EXPECT_EQ(fetched(closed), std::nullopt);
    for (const char* url :
         {"", "file:///etc/hosts", "ftp://127.0.0.1/", "qrc:/help/help.html", "http:", "data:,x"})
        EXPECT_EQ(fetched(QUrl(QString::fromLatin1(url))), std::nullopt) << url;
}

TEST_F(BoundedFetchTest, TimeIsForTheWhole)
{
    server.answer = HttpServer::response("200 OK", "never seen");
    server.manner = HttpServer::Manner::Never;
    EXPECT_EQ(fetched(server.url(), 50), std::nullopt);
    server.answer = "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\nzz\r\n";
    server.manner = HttpServer::Manner::AtOnce;
    EXPECT_EQ(fetched(server.url(), 50), std::nullopt);
    server.answer = "HTTP/1.1 200 OK\r\nX: "; // a header that never ends
    server.manner = HttpServer::Manner::Endlessly;
    EXPECT_EQ(fetched(server.url(), 50), std::nullopt);
    // Each byte comes soon, the last one too late.
    server.answer = HttpServer::response("200 OK", QByteArray(2000, 'x'));
    server.manner = HttpServer::Manner::ByteByByte;
    EXPECT_EQ(fetched(server.url(), 100), std::nullopt);
    EXPECT_EQ(problem, u"no answer in time"_s);
}

TEST_F(BoundedFetchTest, RedirectionsKeepToTheScheme)
{
    const auto to = [](const QString& url) {
        return "HTTP/1.1 302 Found\r\nContent-Length: 0\r\nLocation: " + url.toUtf8() + "\r\n\r\n";
    };
    HttpServer other;
    other.answer = HttpServer::response("200 OK", "there");
    server.answer = to(other.url().toString());
    EXPECT_EQ(fetched(server.url()), QByteArray("there"));
    for (const QString& elsewhere : {u"https://127.0.0.1:1/"_s, u"file:///etc/hosts"_s,
                                     u"qrc:/help/help.html"_s, server.url().toString()}) {
        server.answer = to(elsewhere); // the last goes round in a circle
        EXPECT_EQ(fetched(server.url()), std::nullopt) << elsewhere.toStdString();
    }
}

TEST_F(BoundedFetchTest, EndsWithItsOwner)
{
    server.manner = HttpServer::Manner::Never;
    int answers = 0;
    fetch = std::make_unique<BoundedFetch>(
        network, server.url(), FetchLimits{mostBytes, 20000},
        [&](const std::optional<QByteArray>&, const QString&) { ++answers; });
    ASSERT_TRUE(waitFor([&] { return server.connections() == 1; }));
    fetch.reset();
    EXPECT_TRUE(QTest::qWaitFor([&] { return server.connections() == 0; }, 20000));
    EXPECT_EQ(answers, 0);
}

TEST(BoundedJsonTest, TakesObjectsUpToADepth)
{
    struct Case {
        const char* text;
        bool isTaken;
    };
    for (const auto& [text, isTaken] : std::initializer_list<Case>{
             {R"({"a": {"b": [1]}})", true},
             {R"({"a": {"b": [{}]}})", false},
             {R"({"[[[[[": "\"[[[[\\"})", true},
             {"{}", true},
             {"[1]", false},
             {"3", false},
             {"", false},
             {R"({"a")", false},
             {"{\"a\": \"\xff\"}", false},
         })
        EXPECT_EQ(jsonObjectFromData(text, 3).has_value(), isTaken) << text;
    EXPECT_FALSE(jsonObjectFromData(QByteArray(1 << 20, '['), 3));
}

} // namespace
} // namespace pelmira
