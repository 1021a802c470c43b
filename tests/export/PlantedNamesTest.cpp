#include "export/ShareFile.h"
#include "platform/storage/PhotoLibrary.h"
#include "platform/storage/UserDefaults.h"
#include "support/Test.h"

#include <sys/stat.h>
#include <unistd.h>

namespace pelmira {
namespace {

// What somebody else may have put where we write: a victim's file or folder by another name.
TEST(PlantedNames, AreNeitherFollowedNorWrittenOver)
{
    struct Scene {
        const TemporaryFolder home;
        const QString victim = home.write("victim", "precious");
        const QString elsewhere = home.path("elsewhere");
        const QString shares = home.path() + u"/pelmira-%1"_s.arg(getuid());
        const ShareFile file{home.path()};
        const QString picture = file.shareImagePathPNG();

        Scene() { QDir().mkdir(elsewhere); }
        void makeShares(unsigned mode) const { ::mkdir(qPrintable(shares), mode); }
        bool share() const { return file.write(picture, "picture"); }
        bool save() const
        {
            const QDateTime moment(QDate(2026, 11, 23), QTime(9, 0));
            return PhotoLibrary::inFolder(elsewhere).save("picture", u"png"_s, moment).index() == 0;
        }
        bool prefer() const
        {
            const QString preferences = home.path("preferences.json");
            UserDefaults(preferences).setBool(true, u"saveAsHeif"_s);
            return UserDefaults(preferences).boolForKey(u"saveAsHeif"_s).has_value();
        }
    };

    struct Case {
        const char* name;
        std::function<void(const Scene&)> plant;
        std::function<bool(const Scene&)> write;
        bool isWritten;
    };
    const Case cases[] = {
        {"a link in the share folder's place",
         [](const Scene& s) { QFile::link(s.elsewhere, s.shares); }, &Scene::share, false},
        {"a share folder that all may read",
         [](const Scene& s) {
             s.makeShares(0700);
             ::chmod(qPrintable(s.shares), 0755);
         },
         &Scene::share, false},
        {"a share folder of another user, which only root can make",
         [](const Scene& s) {
             s.makeShares(getuid() == 0 ? 0700 : 0777);
             if (::chown(qPrintable(s.shares), getuid() == 0 ? 1 : getuid(), getgid()) != 0)
                 FAIL();
         },
         &Scene::share, false},
        {"a link in the share file's place",
         [](const Scene& s) {
             s.makeShares(0700);
             QFile::link(s.victim, s.picture);
         },
         &Scene::share, true},
        {"a second name of a file in its place",
         [](const Scene& s) {
             s.makeShares(0700);
             ASSERT_EQ(::link(qPrintable(s.victim), qPrintable(s.picture)), 0);
         },
         &Scene::share, true},
        {"a link in a saved picture's place",
         [](const Scene& s) {
             QFile::link(s.victim, s.elsewhere + u"/Pelmira 2026-11-23 09-00-00.png"_s);
         },
         &Scene::save, true},
        {"a link in the place of the preferences",
         [](const Scene& s) { QFile::link(s.victim, s.home.path("preferences.json")); },
         &Scene::prefer, true},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.name);
        const Scene scene;
        each.plant(scene);
        EXPECT_EQ(each.write(scene), each.isWritten);
        EXPECT_EQ(TemporaryFolder::read(scene.victim), "precious");
        EXPECT_FALSE(QFile::exists(scene.elsewhere + u"/image.png"_s));
        if (each.isWritten && QFile::exists(scene.picture)) {
            EXPECT_FALSE(QFileInfo(scene.picture).isSymLink());
            EXPECT_EQ(TemporaryFolder::read(scene.picture), "picture");
        }
    }
}

} // namespace
} // namespace pelmira
