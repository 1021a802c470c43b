#include "platform/portal/FakePortal.h"
#include "platform/portal/MailComposer.h"
#include "platform/portal/PageOpener.h"
#include "platform/portal/SchemeHandlers.h"
#include "support/WaitFor.h"

#include <QDBusArgument>

#include <csignal>

namespace pelmira {
namespace {

using test::FakePortal;

// With a portal, and with an xdg-open that does as the test wants.
struct PageAndMailTest : test::OnAPrivateBus {
    void begin() override
    {
        pages = std::make_unique<PageOpener>(*ours);
        qputenv("PATH", QFile::encodeName(folder.path()) + ":/usr/bin:/bin");
        setProgram("exit 0");
    }
    void TearDown() override { qputenv("PATH", path); }

    void setProgram(const char* script)
    {
        QFile file(folder.write("xdg-open", "#!/bin/sh\nprintf %s \"$1\" >\"${0%/*}/opened\"\n" +
                                                QByteArray(script) + "\n"));
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    QByteArray openedByProgram() const { return folder.read(folder.path("opened")); }
    bool isOpened(const QString& page)
    {
        std::optional<bool> told;
        pages->openPage(nullptr, QUrl(page), [&](bool wasPresented) { told = wasPresented; });
        EXPECT_FALSE(told) << "never within the call";
        EXPECT_TRUE(QTest::qWaitFor([&] { return told.has_value(); }, 20000));
        return told.value_or(false);
    }

    const TemporaryFolder folder;
    const QByteArray path = qgetenv("PATH");
    std::unique_ptr<PageOpener> pages;
};

TEST_F(PageAndMailTest, ThePortalOpensAPage)
{
    EXPECT_TRUE(isOpened(u"https://example.org/a b?c=%26"_s));
    EXPECT_EQ(portal->method, u"org.freedesktop.portal.OpenURI.OpenURI"_s);
    EXPECT_EQ(portal->arguments.value(1), u"https://example.org/a%20b?c=%26"_s);
    portal->response = 1; // the user has seen the choice, and closed it
    EXPECT_TRUE(isOpened(u"https://example.org/"_s));
    EXPECT_EQ(openedByProgram(), QByteArray());
}

TEST_F(PageAndMailTest, WithoutThePortalAProgramDoes)
{
    portal->manner = FakePortal::Manner::Refuse;
    EXPECT_TRUE(isOpened(u"https://example.org/a b"_s));
    EXPECT_EQ(openedByProgram(), "https://example.org/a%20b");
    portal->leave();
    for (const char* failure : {"exit 3", "kill -9 $$"}) {
        setProgram(failure);
        EXPECT_FALSE(isOpened(u"https://example.org/"_s)) << failure;
    }
    setProgram("echo $$ >\"${0%/*}/browser\"; exec sleep 20"); // it has become the browser
    EXPECT_TRUE(isOpened(u"https://example.org/"_s));
    const int browser = TemporaryFolder::read(folder.path("browser")).toInt();
    ASSERT_EQ(::kill(browser, SIGTERM), 0);
    EXPECT_TRUE(waitFor([=] { return ::kill(browser, 0) != 0; }));
    QFile::remove(folder.path("xdg-open"));
    qputenv("PATH", QFile::encodeName(folder.path()));
    EXPECT_FALSE(isOpened(u"https://example.org/"_s));
}

TEST_F(PageAndMailTest, OnlyTheLastPageIsAnswered)
{
    int first = 0;
    pages->openPage(nullptr, QUrl(u"https://example.org/1"_s), [&](bool) { ++first; });
    EXPECT_TRUE(isOpened(u"https://example.org/2"_s));
    pages->openPage(nullptr, QUrl(u"https://example.org/3"_s), [&](bool) { ++first; });
    pages.reset();
    pages = std::make_unique<PageOpener>(*ours);
    EXPECT_TRUE(isOpened(u"https://example.org/4"_s));
    EXPECT_EQ(first, 0);
}

TEST_F(PageAndMailTest, AMailIsComposedByThePortalOrTheProgram)
{
    MailComposer composer(*ours);
    const Mail mail{u"support@example.org"_s, u"Über uns & 50%"_s, u"a\nb=c"_s};
    const auto composed = [&] {
        std::optional<bool> told;
        composer.compose(nullptr, mail, [&](bool wasPresented) { told = wasPresented; });
        EXPECT_TRUE(QTest::qWaitFor([&] { return told.has_value(); }, 20000));
        return told.value_or(false);
    };
    EXPECT_TRUE(composed());
    EXPECT_EQ(portal->method, u"org.freedesktop.portal.Email.ComposeEmail"_s);
    const auto options = qdbus_cast<QVariantMap>(portal->arguments.last());
    EXPECT_EQ(options[u"address"_s], mail.recipient);
    EXPECT_EQ(options[u"subject"_s], mail.subject);
    EXPECT_EQ(options[u"body"_s], mail.body);
    portal->manner = FakePortal::Manner::Refuse;
    EXPECT_TRUE(composed());
    EXPECT_EQ(openedByProgram(), "mailto:support@example.org?subject=%C3%9Cber%20uns%20%26%2050%25"
                                 "&body=a%0D%0Ab%3Dc");
    setProgram("exit 4");
    EXPECT_FALSE(composed());
}

TEST(SchemeHandlersTest, TheDesktopsCacheTells)
{
    const TemporaryFolder folder;
    EXPECT_FALSE(isSchemeHandled(u"mailto"_s, {folder.path()}));
    QDir().mkpath(folder.path("applications"));
    folder.write("applications/mimeinfo.cache",
                 "[MIME Cache]\ntext/plain=x-scheme-handler/ftp=;\nx-scheme-handler/mailto=a;\n");
    EXPECT_TRUE(isSchemeHandled(u"mailto"_s, {u"/absent"_s, folder.path()}));
    EXPECT_FALSE(isSchemeHandled(u"mail"_s, {folder.path()}));
    EXPECT_FALSE(isSchemeHandled(u"ftp"_s, {folder.path()}));
}

} // namespace
} // namespace pelmira
