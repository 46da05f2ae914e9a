#pragma once

#include <QtCore/qstringlist.h>
#include <QtQuick/qquickitem.h>
#include <QtQuick/qquickwindow.h>

namespace TQFoundation::Testing {

/// How the controls and texts of a page lie in its window, told by their geometry.
class Layout
{
public:
    /// What is wrong with the visible parts of \a page, in words; empty where nothing is. Each control and text lies in
    /// the window, or in a page that scrolls to it; none lies on another; no text is cut.
    static QStringList flawsOf(const QQuickItem *page)
    {
        Layout layout;
        layout.look(page, page->window()->contentItem());
        layout.compare();
        return layout.m_flaws;
    }

    /// Whether all of \a item can be seen in its window, and in each page that scrolls around it.
    static bool isInSight(const QQuickItem *item)
    {
        for (const QQuickItem *outer = item->parentItem(); outer; outer = outer->parentItem()) {
            if ((outer->inherits("QQuickFlickable") || !outer->parentItem())
                && !contains(whole(outer), item->mapRectToItem(outer, whole(item))))
                return false;
        }
        return true;
    }

    /// The popup that \a part is in.
    static QQuickItem *popupOf(QQuickItem *part)
    {
        while (part && !part->inherits("QQuickPopupItem"))
            part = part->parentItem();
        return part;
    }

private:
    struct Piece
    {
        const QQuickItem *item;
        QRectF shown; // in the window
    };

    static QRectF whole(const QQuickItem *item) { return {{0, 0}, item->size()}; }

    // Room for what arithmetic loses.
    static bool contains(const QRectF &outer, const QRectF &inner)
    {
        return outer.adjusted(-0.5, -0.5, 0.5, 0.5).contains(inner);
    }

    static QString nameOf(const QQuickItem *item)
    {
        return QString(QLatin1String(item->metaObject()->className()) + u" '" + item->property("text").toString()
                       + u'\'');
    }

    void look(const QQuickItem *item, const QQuickItem *view)
    {
        if (!item->isVisible() || item->opacity() == 0)
            return;
        const bool isText = item->inherits("QQuickText") && !item->property("text").toString().isEmpty();
        const bool isControl = item->inherits("QQuickAbstractButton") || item->inherits("QQuickTextInput")
            || item->inherits("QQuickTextEdit");
        if (isText)
            lookAtText(item);
        if (isText || isControl)
            place(item, view);
        // The text of a button is part of it.
        const bool scrolls = item->inherits("QQuickFlickable");
        const QList<QQuickItem *> children = item->childItems();
        for (const QQuickItem *child : children)
            look(child, scrolls ? item : view);
    }

    void lookAtText(const QQuickItem *item)
    {
        const bool isCut = item->property("truncated").toBool()
            || item->property("contentWidth").toDouble() > item->width() + 1
            || item->property("contentHeight").toDouble() > item->height() + 1;
        if (isCut)
            m_flaws += nameOf(item) + u" is cut";
    }

    // A view is the window's content or the nearest page that scrolls.
    void place(const QQuickItem *item, const QQuickItem *view)
    {
        QRectF area = whole(item);
        if (item->inherits("QQuickTextInput"))
            area.adjust(0, item->property("topPadding").toDouble(), 0, -item->property("bottomPadding").toDouble());
        QRectF reach = whole(view);
        QPointF scrolled;
        if (view->inherits("QQuickFlickable")) {
            scrolled = {view->property("contentX").toDouble(), view->property("contentY").toDouble()};
            if (view->property("interactive").toBool())
                reach = {-scrolled.x(), -scrolled.y(),
                         std::max(view->width(), view->property("contentWidth").toDouble()),
                         std::max(view->height(), view->property("contentHeight").toDouble())};
            const QQuickItem *const window = view->window()->contentItem();
            if (!contains(whole(window), view->mapRectToItem(window, whole(view))))
                m_flaws += nameOf(view) + u" scrolls outside of the window";
        }
        if (!contains(reach, item->mapRectToItem(view, area)))
            m_flaws += nameOf(item) + u" is out of reach";
        const QRectF shown = item->mapRectToScene(area).intersected(view->mapRectToScene(whole(view)));
        if (!shown.isEmpty())
            m_pieces.append({item, shown});
    }

    void compare()
    {
        for (qsizetype one = 0; one < m_pieces.size(); ++one) {
            for (qsizetype other = one + 1; other < m_pieces.size(); ++other) {
                const QRectF shared = m_pieces[one].shown.intersected(m_pieces[other].shown);
                const bool belongs = m_pieces[one].item->isAncestorOf(m_pieces[other].item);
                if (!belongs && shared.width() > 1 && shared.height() > 1)
                    m_flaws += nameOf(m_pieces[one].item) + u" lies on " + nameOf(m_pieces[other].item);
            }
        }
    }

    QList<Piece> m_pieces;
    QStringList m_flaws;
};

} // namespace TQFoundation::Testing
