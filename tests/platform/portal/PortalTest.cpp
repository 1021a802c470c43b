#include "platform/portal/CameraPortal.h"
#include "platform/portal/FakePortal.h"
#include "platform/portal/FileChooser.h"
#include "platform/portal/FileManager.h"
#include "platform/portal/MemoryMonitor.h"
#include "platform/portal/OpenURI.h"
#include "support/Test.h"
#include "support/WaitFor.h"

#include <QDBusArgument>

namespace pelmira {
namespace {

using test::FakePortal;
using Manner = FakePortal::Manner;

struct PortalTest : test::OnAPrivateBus {
    void begin() override { chooser = std::make_unique<FileChooser>(*ours); }
    void TearDown() override { chooser.reset(); }

    void choose()
    {
        answers = 0;
        chooser->chooseFile(nullptr, u"Open"_s, {u"Photos"_s, {u"image/png"_s, u"image/heic"_s}},
                            [this](PortalOutcome how, const QString& which) {
                                ++answers;
                                outcome = how;
                                path = which;
                            });
        EXPECT_EQ(answers, 0) << "never within the call";
    }
    PortalOutcome chosen()
    {
        choose();
        EXPECT_TRUE(QTest::qWaitFor([this] { return answers == 1; }, 20000));
        return outcome;
    }

    std::unique_ptr<FileChooser> chooser;
    int answers = 0;
    PortalOutcome outcome{};
    QString path;
};

TEST_F(PortalTest, TheChosenFileComesHoweverThePortalAnswers)
{
    portal->results.insert(u"uris"_s, QStringList{u"file:///tmp/a%20photo.png"_s});
    for (const Manner manner : {Manner::Answer, Manner::AnswerBeforeReturn}) {
        portal->manner = manner;
        path.clear();
        EXPECT_EQ(chosen(), PortalOutcome::Done);
        EXPECT_EQ(path, u"/tmp/a photo.png"_s);
    }
    EXPECT_EQ(portal->method, u"org.freedesktop.portal.FileChooser.OpenFile"_s);
    const auto options = qdbus_cast<QVariantMap>(portal->arguments.value(2));
    const auto filters = options[u"filters"_s].value<QDBusArgument>();
    EXPECT_EQ(filters.currentSignature(), u"a(sa(us))"_s);
    EXPECT_EQ(portal->closed, 0);
}

TEST_F(PortalTest, CancelledAndRefusedAndAbsentAreToldApart)
{
    for (const uint closed : {1U, 2U}) { // by its button; by Escape or its frame
        portal->response = closed;
        EXPECT_EQ(chosen(), PortalOutcome::Cancelled);
    }
    portal->response = 0; // but nothing that could be opened as a file
    portal->results.insert(u"uris"_s, QStringList{u"https://a.b/c"_s});
    EXPECT_EQ(chosen(), PortalOutcome::Cancelled);
    EXPECT_TRUE(path.isEmpty());
    portal->manner = Manner::Refuse;
    EXPECT_EQ(chosen(), PortalOutcome::Unavailable);
    portal->leave();
    EXPECT_EQ(chosen(), PortalOutcome::Unavailable);
    chooser = std::make_unique<FileChooser>(QDBusConnection(u"none"_s));
    EXPECT_EQ(chosen(), PortalOutcome::Unavailable);
}

TEST_F(PortalTest, ADialogEndsWithItsOwnerAndWithItsPortal)
{
    portal->manner = Manner::LeaveOpen;
    choose();
    ASSERT_TRUE(waitFor([this] { return !portal->method.isEmpty(); }));
    chooser = std::make_unique<FileChooser>(*ours);
    ASSERT_TRUE(waitFor([this] { return portal->closed == 1; }));
    EXPECT_EQ(answers, 0);

    portal->method.clear();
    choose();
    ASSERT_TRUE(waitFor([this] { return !portal->method.isEmpty(); }));
    portal->leave(); // it crashed, say
    ASSERT_TRUE(waitFor([this] { return answers == 1; }));
    EXPECT_EQ(outcome, PortalOutcome::Unavailable);
}

TEST_F(PortalTest, AFileIsHandedOverByItsContents)
{
    const TemporaryFolder folder;
    const QString file = folder.write("image.png", "pixels");
    OpenURI openURI(*ours);
    const auto presented = [&](const QString& which) {
        std::optional<PortalOutcome> told;
        openURI.openWith(nullptr, which, [&](PortalOutcome how) { told = how; });
        EXPECT_TRUE(waitFor([&] { return told.has_value(); }));
        return *told;
    };
    EXPECT_EQ(presented(file), PortalOutcome::Done);
    EXPECT_EQ(portal->passedFile, "pixels");
    EXPECT_TRUE(qdbus_cast<QVariantMap>(portal->arguments.last())[u"ask"_s].toBool());
    portal->response = 1; // seen, and closed
    EXPECT_EQ(presented(file), PortalOutcome::Cancelled);
    portal->manner = Manner::Refuse;
    EXPECT_EQ(presented(file), PortalOutcome::Unavailable);
    portal->method.clear();
    EXPECT_EQ(presented(folder.path("absent")), PortalOutcome::Unavailable);
    EXPECT_TRUE(portal->method.isEmpty());
}

TEST_F(PortalTest, ASavedFileIsShownByTheFileManagerOrThroughThePortal)
{
    const TemporaryFolder folder;
    FileManager manager(*ours);
    manager.showFile(nullptr, folder.write("image.png", ""));
    ASSERT_TRUE(waitFor([this] { return !portal->method.isEmpty(); }));
    EXPECT_EQ(portal->method, u"org.freedesktop.portal.OpenURI.OpenDirectory"_s);
    QDBusConnection(u"portal"_s).registerService(u"org.freedesktop.FileManager1"_s);
    portal->method.clear();
    manager.showFile(nullptr, folder.path("image.png"));
    ASSERT_TRUE(waitFor([this] { return !portal->method.isEmpty(); }));
    EXPECT_EQ(portal->method, u"org.freedesktop.FileManager1.ShowItems"_s);
}

TEST_F(PortalTest, TheCameraIsGrantedOrDenied)
{
    using Access = CameraPortal::Access;
    CameraPortal camera(*ours);
    EXPECT_TRUE(waitFor([&] { return camera.access() == Access::NotAsked; }));
    const auto requested = [&] {
        std::optional<Access> told;
        camera.requestAccess([&](Access access) { told = access; });
        EXPECT_TRUE(waitFor([&] { return told.has_value(); }));
        EXPECT_EQ(told, camera.access());
        return camera.access();
    };
    EXPECT_EQ(requested(), Access::Granted);
    portal->response = 1;
    EXPECT_EQ(requested(), Access::Denied);
    portal->manner = Manner::Refuse;
    EXPECT_EQ(requested(), Access::Unavailable);
}

TEST_F(PortalTest, MemoryIsShortFromTheMediumLevelOn)
{
    int warnings = 0;
    const MemoryMonitor monitor([&] { ++warnings; }, *ours);
    for (const uchar level : {uchar{50}, uchar{100}, uchar{255}}) {
        QDBusMessage signal = QDBusMessage::createSignal(u"/org/freedesktop/portal/desktop"_s,
                                                         u"org.freedesktop.portal.MemoryMonitor"_s,
                                                         u"LowMemoryWarning"_s);
        signal << QVariant::fromValue(level);
        portal->send(signal);
    }
    EXPECT_TRUE(waitFor([&] { return warnings == 2; }));
}

} // namespace
} // namespace pelmira
