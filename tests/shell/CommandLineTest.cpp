#include "shell/CommandLine.h"

#include <gtest/gtest.h>

namespace pelmira {
namespace {

using namespace Qt::StringLiterals;

TEST(CommandLineTest, PhotosArePathsOrAddressesAndTheRestIsRefused)
{
    using Request = CommandLine::Request;
    struct Case {
        QStringList arguments;
        Request request;
        QStringList photos;
    };
    const Case cases[] = {
        {{}, Request::Run, {}},
        {{u"a b.jpg"_s, u"../c.png"_s, u"/d.webp"_s},
         Request::Run,
         {u"/here/a b.jpg"_s, u"/c.png"_s, u"/d.webp"_s}},
        {{u"file:///tmp/a%20photo.jpg"_s}, Request::Run, {u"/tmp/a photo.jpg"_s}},
        {{u"--"_s, u"--help"_s, u"-x.jpg"_s}, Request::Run, {u"/here/--help"_s, u"/here/-x.jpg"_s}},
        {{u"a.jpg"_s, u"--help"_s}, Request::Help, {}},
        {{u"-v"_s}, Request::Version, {}},
        {{u"-platform"_s, u"xcb"_s, u"--version"_s}, Request::Version, {}},
        {{u"--frob"_s}, Request::Refuse, {}},
        {{u"https://example.org/a.jpg"_s, u"b.jpg"_s}, Request::Refuse, {u"/here/b.jpg"_s}},
        {{u"file:2//a.jpg"_s}, Request::Refuse, {}},
        {{u""_s}, Request::Run, {}},
    };
    for (const Case& each : cases) {
        const CommandLine line = CommandLine::parse(each.arguments, u"/here"_s);
        EXPECT_EQ(line.request, each.request) << qPrintable(each.arguments.join(u' '));
        EXPECT_EQ(line.photos, each.photos) << qPrintable(each.arguments.join(u' '));
        EXPECT_EQ(line.problem.isEmpty(), each.request != Request::Refuse);
    }
}

} // namespace
} // namespace pelmira
