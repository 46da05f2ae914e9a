#pragma once

#include <QtCore/qstringlist.h>
#include <QtQuick/qquickitem.h>
#include <QtQuick/qquickwindow.h>

namespace TQFoundation::Testing {

/// Geometric check of the controls and texts of a page.
class Layout
{
public:
    /// Returns one message for each layout error among the visible items below \a page; empty if all is well. Each
    /// control and text must lie in the window or in a Flickable that can scroll to it. No two may overlap, and no text
    /// may be elided or clipped.
    static QStringList flawsOf(const QQuickItem *page)
    {
        Layout layout;
        layout.collect(page, page->window()->contentItem());
        layout.checkOverlaps();
        return layout.m_errors;
    }

    /// Whether \a item lies entirely in its window and in the visible area of each Flickable that contains it.
    static bool isInSight(const QQuickItem *item)
    {
        for (const QQuickItem *outer = item->parentItem(); outer; outer = outer->parentItem()) {
            if ((outer->inherits("QQuickFlickable") || !outer->parentItem())
                && !contains(rectOf(outer), item->mapRectToItem(outer, rectOf(item))))
                return false;
        }
        return true;
    }

    /// Returns the popup that contains \a part, or null if it is in no popup.
    static QQuickItem *popupOf(QQuickItem *part)
    {
        while (part && !part->inherits("QQuickPopupItem"))
            part = part->parentItem();
        return part;
    }

private:
    struct VisibleItem
    {
        const QQuickItem *item;
        QRectF rect; // in scene coordinates
    };

    static QRectF rectOf(const QQuickItem *item) { return {{0, 0}, item->size()}; }

    // Half a pixel of tolerance for rounding.
    static bool contains(const QRectF &outer, const QRectF &inner)
    {
        return outer.adjusted(-0.5, -0.5, 0.5, 0.5).contains(inner);
    }

    static QString nameOf(const QQuickItem *item)
    {
        return QString(QLatin1String(item->metaObject()->className()) + u" '" + item->property("text").toString()
                       + u'\'');
    }

    void collect(const QQuickItem *item, const QQuickItem *view)
    {
        if (!item->isVisible() || item->opacity() == 0)
            return;
        const bool isText = item->inherits("QQuickText") && !item->property("text").toString().isEmpty();
        const bool isControl = item->inherits("QQuickAbstractButton") || item->inherits("QQuickTextInput")
            || item->inherits("QQuickTextEdit");
        if (isText)
            checkText(item);
        if (isText || isControl)
            checkPlacement(item, view);
        const bool scrolls = item->inherits("QQuickFlickable");
        const QList<QQuickItem *> children = item->childItems();
        for (const QQuickItem *child : children)
            collect(child, scrolls ? item : view);
    }

    void checkText(const QQuickItem *item)
    {
        const bool isClipped = item->property("truncated").toBool()
            || item->property("contentWidth").toDouble() > item->width() + 1
            || item->property("contentHeight").toDouble() > item->height() + 1;
        if (isClipped)
            m_errors += nameOf(item) + u" is elided or clipped";
    }

    // The view is the nearest Flickable around the item, else the window's content item.
    void checkPlacement(const QQuickItem *item, const QQuickItem *view)
    {
        QRectF area = rectOf(item);
        if (item->inherits("QQuickTextInput"))
            area.adjust(0, item->property("topPadding").toDouble(), 0, -item->property("bottomPadding").toDouble());
        QRectF scrollable = rectOf(view);
        QPointF scrolled;
        if (view->inherits("QQuickFlickable")) {
            scrolled = {view->property("contentX").toDouble(), view->property("contentY").toDouble()};
            if (view->property("interactive").toBool())
                scrollable = {-scrolled.x(), -scrolled.y(),
                              std::max(view->width(), view->property("contentWidth").toDouble()),
                              std::max(view->height(), view->property("contentHeight").toDouble())};
            const QQuickItem *const window = view->window()->contentItem();
            if (!contains(rectOf(window), view->mapRectToItem(window, rectOf(view))))
                m_errors += nameOf(view) + u" extends beyond the window";
        }
        if (!contains(scrollable, item->mapRectToItem(view, area)))
            m_errors += nameOf(item) + u" cannot be scrolled into view";
        const QRectF rect = item->mapRectToScene(area).intersected(view->mapRectToScene(rectOf(view)));
        if (!rect.isEmpty())
            m_visible.append({item, rect});
    }

    void checkOverlaps()
    {
        for (qsizetype one = 0; one < m_visible.size(); ++one) {
            for (qsizetype other = one + 1; other < m_visible.size(); ++other) {
                const QRectF shared = m_visible[one].rect.intersected(m_visible[other].rect);
                // A button contains its own text item.
                const bool isDescendant = m_visible[one].item->isAncestorOf(m_visible[other].item);
                if (!isDescendant && shared.width() > 1 && shared.height() > 1)
                    m_errors += nameOf(m_visible[one].item) + u" overlaps " + nameOf(m_visible[other].item);
            }
        }
    }

    QList<VisibleItem> m_visible;
    QStringList m_errors;
};

} // namespace TQFoundation::Testing
