#include "ViewController.h"

#include "Topmost.h"

#include <QtCore/qvariant.h>
#include <QtQuick/qquickwindow.h>

#include <utility>

namespace TQFoundation {
namespace {

// A dynamic property of the window holds its root controller, so that it is released with the window.
constexpr char rootProperty[] = "_tq_rootViewController";

} // namespace

ViewController::ViewController(QQuickItem *view) : m_view(view) {}

ViewController::~ViewController()
{
    if (m_presented)
        m_presented->m_presenting = nullptr;
}

void ViewController::present(std::shared_ptr<ViewController> next)
{
    if (!next || next->m_presenting || m_presented)
        return;
    for (const ViewController *link = this; link; link = link->m_presenting) {
        if (link == next.get())
            return;
    }
    next->m_presenting = this;
    m_presented = std::move(next);
    QQuickWindow *window = nullptr;
    for (const ViewController *link = this; link && !window; link = link->m_presenting)
        window = link->m_view && link->m_view->window() ? link->m_view->window() : link->m_rootWindow.data();
    // A controller that cannot appear may dismiss itself during the call.
    const auto presented = m_presented;
    presented->appear(window);
}

void ViewController::dismiss()
{
    ViewController *presenter = m_presented ? this : m_presenting;
    if (!presenter)
        return;
    const auto dismissed = presenter->m_presented;
    if (dismissed->m_presented)
        dismissed->dismiss();
    presenter->m_presented = nullptr;
    dismissed->m_presenting = nullptr;
    dismissed->disappear();
}

std::shared_ptr<ViewController> ViewController::rootOf(QWindow *window)
{
    auto *quick = qobject_cast<QQuickWindow *>(window);
    // A window that is being destroyed has no content item any more.
    if (!quick || !quick->contentItem())
        return nullptr;
    auto root = quick->property(rootProperty).value<std::shared_ptr<ViewController>>();
    if (!root) {
        root = std::make_shared<ViewController>(quick->contentItem());
        setRoot(quick, root);
    }
    return root;
}

void ViewController::setRoot(QQuickWindow *window, const std::shared_ptr<ViewController> &root)
{
    if (!window)
        return;
    if (const auto former = window->property(rootProperty).value<std::shared_ptr<ViewController>>())
        former->m_rootWindow = nullptr;
    window->setProperty(rootProperty, root ? QVariant::fromValue(root) : QVariant());
    if (root)
        root->m_rootWindow = window;
}

void ViewController::appear(QQuickWindow *window)
{
    if (m_view && window)
        addAsTopmostChild(m_view, window->contentItem());
}

void ViewController::disappear()
{
    if (m_view)
        m_view->setParentItem(nullptr);
}

} // namespace TQFoundation
