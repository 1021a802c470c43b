#include "intake/CameraPermissionsHelper.h"
#include "intake/PhotoPermissionsHelper.h"
#include "support/Test.h"

#include <QFileInfo>

#include <sys/stat.h>
#include <unistd.h>

namespace pelmira {
namespace {

struct PermissionsTest : testing::Test {
    PermissionStatus request(const QString& path) const
    {
        std::optional<PermissionStatus> status;
        PhotoPermissionsHelper::requestPhotosAccessWithCompletion(
            [&status](PermissionStatus reported) { status = reported; }, path);
        EXPECT_FALSE(status) << "never within the call";
        EXPECT_TRUE(drainUntil([&] { return status.has_value(); }));
        return status.value_or(PermissionStatus::NotDetermined);
    }

    const TemporaryFolder folder;
    Alert alert;
};

TEST_F(PermissionsTest, TheFolderTellsWhatIsAllowed)
{
    using Helper = PhotoPermissionsHelper;
    EXPECT_EQ(Helper::authorizationStatus(folder.path()), PermissionStatus::Authorized);
    EXPECT_TRUE(Helper::isAuthorised(folder.path()));
    for (const QString& path : {folder.impossibleFolder(), folder.write("file", "x")}) {
        EXPECT_EQ(Helper::authorizationStatus(path), PermissionStatus::Denied);
        EXPECT_FALSE(Helper::isAuthorised(path));
        EXPECT_EQ(request(path), PermissionStatus::Denied);
    }

    const QString absent = folder.path("home/Pictures");
    EXPECT_EQ(Helper::authorizationStatus(absent), PermissionStatus::NotDetermined);
    EXPECT_EQ(request(absent), PermissionStatus::Authorized);
    EXPECT_TRUE(QFileInfo(absent).isDir());

    if (::geteuid() == 0)
        return; // who may do everything learns nothing from permissions
    ::chmod(qPrintable(absent), 0500);
    EXPECT_EQ(Helper::authorizationStatus(absent), PermissionStatus::Limited);
    EXPECT_TRUE(Helper::isAuthorised(absent));
    ::chmod(qPrintable(absent), 0300);
    EXPECT_EQ(Helper::authorizationStatus(absent), PermissionStatus::Denied);
    ::chmod(qPrintable(absent), 0700);
}

TEST_F(PermissionsTest, WritingGoesOnOrLeadsToTheSettings)
{
    int successes = 0;
    int settings = 0;
    const auto ensure = [&](const QString& path) {
        PhotoPermissionsHelper::ensurePhotoWriteAccessPostiOS14WithVc(
            alert, [&] { ++successes; }, [&] { ++settings; }, path);
        for (const int before = successes; successes == before && !alert.isOpen();)
            drainMainQueue();
    };
    ensure(folder.path());
    EXPECT_FALSE(alert.isOpen());
    ensure(folder.impossibleFolder());
    EXPECT_EQ(successes, 1);
    ASSERT_TRUE(alert.isOpen());
    EXPECT_FALSE(alert.message().isEmpty());
    EXPECT_TRUE(alert.title().isEmpty());
    alert.buttonPressed(true);
    EXPECT_EQ(settings, 1);
}

TEST_F(PermissionsTest, TheCamerasAreTheVideoDevicesAndOpenUnlessDenied)
{
    for (const auto& [status, isOpened, isTold] : {std::tuple(0, true, false),
                                                   {3, true, false},
                                                   {4, false, false},
                                                   {17, false, false},
                                                   {1, false, true},
                                                   {2, false, true}}) {
        int calls = 0;
        CameraPermissionsHelper::ensureCameraAccess(
            alert, [status = status] { return static_cast<PermissionStatus>(status); },
            [&] { ++calls; }, [] {});
        drainMainQueue();
        EXPECT_EQ(calls, isOpened) << status;
        EXPECT_EQ(alert.isOpen(), isTold) << status;
        alert.dismiss();
    }

    using Helper = CameraPermissionsHelper;
    folder.write("video", "");
    folder.write("vcs0", "");
    EXPECT_EQ(Helper::statusOfDevices(folder.path()), PermissionStatus::NotDetermined);
    const QString device = folder.write("video0", "");
    EXPECT_EQ(Helper::statusOfDevices(folder.path()), PermissionStatus::Authorized);
    if (::geteuid() == 0)
        return;
    ::chmod(qPrintable(device), 0);
    EXPECT_EQ(Helper::statusOfDevices(folder.path()), PermissionStatus::Denied);
}

} // namespace
} // namespace pelmira
