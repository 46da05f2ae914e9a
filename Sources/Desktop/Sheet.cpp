#include "Sheet.h"

#include "LibraryEngine.h"
#include "SafeArea.h"
#include "Topmost.h"
#include "TQFoundation/Platform.h"

#include <QtGui/qguiapplication.h>
#include <QtGui/qinputmethod.h>
#include <QtQml/qjsengine.h>
#include <QtQuick/qquickitem.h>
#include <QtQuick/qquickwindow.h>

#include <algorithm>
#include <utility>

namespace TQFoundation {
namespace {

// Raises the window's popup overlay above items that the host has stacked on top of it.
void raisePopupOverlay(QQuickItem *content)
{
    const QList<QQuickItem *> children = content->childItems();
    const auto overlay =
        std::ranges::find_if(children, [](QQuickItem *child) { return child->inherits("QQuickOverlay"); });
    if (overlay == children.end())
        return;
    if (std::ranges::any_of(
            children, [overlay](QQuickItem *child) { return child != *overlay && child->z() >= (*overlay)->z(); }))
        addAsTopmostChild(*overlay, content);
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
    const auto updateSafeArea = [popup = m_popup.data(), window = QPointer(window)] {
        if (!window)
            return;
        QRectF area = safeArea(*window);
        const QRectF keyboard = QGuiApplication::inputMethod()->keyboardRectangle();
        if (!keyboard.isEmpty())
            area.setBottom(std::clamp(keyboard.top(), area.top(), area.bottom()));
        popup->setProperty("safeArea", area);
    };
    updateSafeArea();
    QObject::connect(QGuiApplication::inputMethod(), &QInputMethod::keyboardRectangleChanged, m_popup, updateSafeArea);
    QObject::connect(window, &QQuickWindow::afterAnimating, m_popup, updateSafeArea);
    m_popup->setProperty("visible", true);
    raisePopupOverlay(window->contentItem());
    return true;
}

void Sheet::close()
{
    QObject *popup = std::exchange(m_popup, nullptr);
    if (!popup)
        return;
    // QQuickPopup is private API, so its signal is connected by name.
    QObject::connect(popup, SIGNAL(closed()), popup, SLOT(deleteLater()));
    popup->setProperty("visible", false);
}

} // namespace TQFoundation
