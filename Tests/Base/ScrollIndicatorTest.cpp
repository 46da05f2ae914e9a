#include "QmlWindow.h"

namespace TQFoundation {
namespace {

using Testing::QmlWindow;

// A flickable of 90 points that shows the part of its content that begins at contentY.
QRectF shownBeside(double contentHeight, double contentY)
{
    const QmlWindow host("import TQFoundation.Base\n"
                         "Item {\n"
                         " property alias indicator: shown\n"
                         " Flickable { id: page; y: 10; width: 100; height: 90; contentHeight: "
                         + QByteArray::number(contentHeight) + "; contentY: " + QByteArray::number(contentY)
                         + "; interactive: contentHeight > height }\n"
                           " ScrollIndicator { id: shown; flickable: page }\n"
                           "}");
    const auto *indicator = host.item->property("indicator").value<QQuickItem *>();
    return indicator->isVisible() ? QRectF(indicator->position(), indicator->size()) : QRectF();
}

TEST(ScrollIndicator, ShowsWhichPartIsVisible)
{
    EXPECT_EQ(shownBeside(180, 0), QRectF(0, 10, 4, 45));
    EXPECT_EQ(shownBeside(180, 90), QRectF(0, 55, 4, 45));
    EXPECT_EQ(shownBeside(90'000, 0), QRectF(0, 10, 4, 24)) << "large enough to see";
    EXPECT_EQ(shownBeside(90'000, 89'910), QRectF(0, 76, 4, 24)) << "and not below the page";
    EXPECT_EQ(shownBeside(90, 0), QRectF()) << "all is visible";
}

} // namespace
} // namespace TQFoundation
