#include "controls/Alert.h"

#include <gtest/gtest.h>

namespace pelmira {
namespace {

using namespace Qt::StringLiterals;

TEST(AlertTest, TellsWhichActionWasPressedOnceAndNothingOfACancel)
{
    Alert alert;
    QStringList chosen;
    const auto ask = [&] {
        alert.show({u"How?"_s, {}, u"Cancel"_s, QStringList{u"High"_s, u"Low"_s}},
                   [&](const QString& title) { chosen << title; });
    };
    ask();
    alert.actionButtonPressed(7);
    EXPECT_TRUE(alert.isOpen());
    alert.actionButtonPressed(1);
    alert.actionButtonPressed(0); // a second press while it fades
    ask();
    alert.buttonPressed(true); // Enter
    ask();
    alert.buttonPressed(false);
    ask();
    alert.dismiss();
    alert.actionButtonPressed(0);
    EXPECT_EQ(chosen, (QStringList{u"Low"_s, u"High"_s}));

    // A message with a single button: Enter closes it too.
    alert.show({u"Sorry"_s, {}, u"Done"_s, QStringList()}, [&](const QString&) { FAIL(); });
    alert.buttonPressed(true);
    EXPECT_FALSE(alert.isOpen());
}

TEST(AlertTest, ACardStandsNextToItsButtonAndInsideTheWindow)
{
    const QSizeF card(300, 200);
    const QSizeF phone(390, 844);
    EXPECT_EQ(Alert::positionForCard(card, {}, phone), QPointF(45, 322));
    EXPECT_EQ(Alert::positionForCard(card, {150, 600, 60, 50}, phone), QPointF(30, 392));
    EXPECT_EQ(Alert::positionForCard(card, {320, 100, 60, 50}, phone), QPointF(82, 158));
    EXPECT_EQ(Alert::positionForCard(card, {10, 150, 60, 50}, {844, 320}), QPointF(8, 112));
    EXPECT_EQ(Alert::positionForCard({500, 900}, {10, 150, 60, 50}, phone), QPointF(0, 0));
}

} // namespace
} // namespace pelmira
