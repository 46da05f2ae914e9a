#include "Sheet.h"

#include "LibraryEngine.h"
#include "Topmost.h"
#include "TQFoundation/Platform.h"

#include <QtQml/qjsengine.h>
#include <QtQuick/qquickitem.h>
#include <QtQuick/qquickwindow.h>

#include <algorithm>
#include <utility>

namespace TQFoundation {
namespace {

// What a host has laid over the layer of popups is under what is presented after it.
void raisePopups(QQuickItem *content)
{
    const QList<QQuickItem *> children = content->childItems();
    const auto layer =
        std::ranges::find_if(children, [](QQuickItem *child) { return child->inherits("QQuickOverlay"); });
    if (layer == children.end())
        return;
    if (std::ranges::any_of(children,
                            [layer](QQuickItem *child) { return child != *layer && child->z() >= (*layer)->z(); }))
        addAsTopmostChild(*layer, content);
}

} // namespace

Sheet::~Sheet()
{
    if (m_popup)
        deferredDelete(m_popup);
}

bool Sheet::open(const QString &name, std::unique_ptr<QObject> page, QQuickWindow *window)
{
    if (!window || !window->contentItem())
        return false;
    QJSEngine::setObjectOwnership(page.get(), QJSEngine::CppOwnership);
    std::unique_ptr<QObject> popup = makeFromNib(platform().resourceRoot() + u"/Desktop/" + name + u".qml",
                                                 {{QStringLiteral("page"), QVariant::fromValue(page.get())}});
    if (!popup)
        return false;
    page.release()->setParent(popup.get());
    m_popup = popup.release();
    m_popup->setParent(applicationScope());
    QObject::connect(window, &QObject::destroyed, m_popup, &QObject::deleteLater);
    m_popup->setProperty("parent", QVariant::fromValue(window->contentItem()));
    m_popup->setProperty("visible", true);
    raisePopups(window->contentItem());
    return true;
}

void Sheet::close()
{
    QObject *popup = std::exchange(m_popup, nullptr);
    if (!popup)
        return;
    // The type of popups is known to QML alone, and so its signals by name.
    QObject::connect(popup, SIGNAL(closed()), popup, SLOT(deleteLater()));
    popup->setProperty("visible", false);
}

} // namespace TQFoundation
