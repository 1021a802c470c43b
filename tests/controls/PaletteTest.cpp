#include "controls/StyleUtil.h"
#include "platform/text/NumberFormatter.h"

#include <gtest/gtest.h>

namespace pelmira {
namespace {

TEST(Palette, TakesSixHexDigitsAfterAHashAndNothingElse)
{
    EXPECT_EQ(colorWithHexString(u"#5699fd"), QColor(0x56, 0x99, 0xfd));
    EXPECT_EQ(colorWithHexString(u"#F56A6A"), QColor(0xf5, 0x6a, 0x6a));
    for (const char16_t* text : {u"", u"#", u"5699fd", u"#5699f", u"#5699fdd", u"#5699fg",
                                 u"#+699fd", u"# 699fd", u"#0x99fd", u"red"})
        EXPECT_FALSE(colorWithHexString(text)) << QString::fromUtf16(text).toStdString();
}

TEST(Percent, FollowsTheLocale)
{
    EXPECT_EQ(NumberFormatter::percent(0.2, QLocale(QLocale::English)), u"20%");
    EXPECT_EQ(NumberFormatter::percent(1.0, QLocale(QLocale::German)), u"100\u00a0%");
    EXPECT_EQ(NumberFormatter::percent(0.2, QLocale(QLocale::Turkish)), u"%20");
    // Halves go to the even neighbour; nothing shows a minus zero.
    EXPECT_EQ(NumberFormatter::percent(0.125, QLocale::c()), u"12%");
    EXPECT_EQ(NumberFormatter::percent(0.135, QLocale::c()), u"14%");
    EXPECT_EQ(NumberFormatter::percent(-0.001, QLocale::c()), u"0%");
}

} // namespace
} // namespace pelmira
