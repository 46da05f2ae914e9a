#include "Topmost.h"

#include "QmlWindow.h"

#include <gtest/gtest.h>

#include <limits>

namespace TQFoundation {
namespace {

TEST(Topmost, CoversSiblingsAndPopups)
{
    Testing::QmlWindow host("import QtQuick.Controls\nItem { Popup { visible: true; modal: true } }");
    QQuickItem *const content = host.window.contentItem();
    QQuickItem high(content);
    high.setZ(5e7);
    QQuickItem item;
    addAsTopmostChild(&item, content);
    const QList<QQuickItem *> siblings = content->childItems();
    ASSERT_GE(siblings.size(), 4) << "the root item, the popup overlay, the high item and the new one";
    for (const QQuickItem *sibling : siblings)
        EXPECT_TRUE(sibling == &item || sibling->z() < item.z());
    QQuickItem later(content);
    EXPECT_LT(later.z(), item.z());
}

TEST(Topmost, CoversPopupsThatOpenLater)
{
    Testing::QmlWindow host("import QtQuick.Controls\nLoader {\n"
                            "active: false; sourceComponent: Item { Popup { visible: true; modal: true } } }");
    QQuickItem *const content = host.window.contentItem();
    QQuickItem item;
    addAsTopmostChild(&item, content);
    const qsizetype before = content->childItems().size();
    host.item->setProperty("active", true);
    const QList<QQuickItem *> siblings = content->childItems();
    ASSERT_GT(siblings.size(), before) << "the popup overlay";
    for (const QQuickItem *sibling : siblings)
        EXPECT_TRUE(sibling == &item || isAbove(&item, sibling));
}

TEST(Topmost, CoversSiblingsWithInfiniteZ)
{
    QQuickItem host;
    QQuickItem item(&host);
    QQuickItem highest(&host);
    highest.setZ(std::numeric_limits<double>::infinity());
    addAsTopmostChild(&item, &host);
    EXPECT_EQ(host.childItems().last(), &item);
    EXPECT_EQ(item.z(), highest.z());
}

TEST(Topmost, RaisesChildAndKeepsItsGeometry)
{
    QQuickItem host;
    QQuickItem item(&host);
    item.setPosition({3, 4});
    item.setSize({5, 6});
    QQuickItem above(&host);
    addAsTopmostChild(&above, &host);
    addAsTopmostChild(&item, &host);
    EXPECT_GT(item.z(), above.z());
    EXPECT_EQ(QRectF(item.position(), item.size()), QRectF(3, 4, 5, 6));
}

TEST(Topmost, MovesItemToAnotherHost)
{
    QQuickItem former;
    QQuickItem host;
    QQuickItem item(&former);
    addAsTopmostChild(&item, &host);
    EXPECT_EQ(item.parentItem(), &host);
}

TEST(Topmost, IgnoresNullItselfAndDescendants)
{
    QQuickItem item;
    QQuickItem child(&item);
    QQuickItem grandchild(&child);
    addAsTopmostChild(nullptr, &item);
    addAsTopmostChild(&item, nullptr);
    addAsTopmostChild(&item, &item);
    addAsTopmostChild(&item, &grandchild);
    EXPECT_EQ(item.parentItem(), nullptr);
}

TEST(Topmost, ComparesStackingOfItemsInOneTree)
{
    QQuickItem root;
    QQuickItem first(&root);
    QQuickItem second(&root);
    QQuickItem insideFirst(&first);
    QQuickItem insideSecond(&second);
    insideFirst.setZ(5);
    EXPECT_TRUE(isAbove(&second, &first)) << "the later of equal siblings";
    EXPECT_TRUE(isAbove(&insideSecond, &insideFirst)) << "their ancestors decide";
    EXPECT_FALSE(isAbove(&insideFirst, &insideSecond));
    first.setZ(1);
    EXPECT_TRUE(isAbove(&insideFirst, &insideSecond));
}

TEST(Topmost, FindsNothingAboveAncestorsOrOtherTrees)
{
    QQuickItem root;
    QQuickItem child(&root);
    QQuickItem other;
    EXPECT_FALSE(isAbove(&child, &root));
    EXPECT_FALSE(isAbove(&root, &child));
    EXPECT_FALSE(isAbove(&child, &child));
    EXPECT_FALSE(isAbove(&child, &other));
}

} // namespace
} // namespace TQFoundation
