#include "TQGuideView.h"

#include "FocusAnnouncer.h"
#include "InputShield.h"
#include "KeyWindow.h"
#include "LibraryEngine.h"
#include "OpacityAnimation.h"
#include "Precondition.h"
#include "SafeArea.h"
#include "Topmost.h"
#include "TQFoundation/Bundle.h"
#include "TQFoundation/Platform.h"

#include <QtGui/qaccessible.h>
#include <QtGui/qevent.h>

#include <limits>
#include <utility>

namespace TQFoundation {
namespace {

// Durations in seconds.
constexpr double overlayFade = 0.6;
constexpr double labelFade = 0.4;

QString flagKey()
{
    return QStringLiteral("KeyOfDidShowGuide");
}

QQuickItem *required(QQuickItem *outlet)
{
    precondition(outlet);
    return outlet;
}

} // namespace

TQGuideView::TQGuideView(QQuickItem *parent) : QQuickItem(parent), m_shield(new InputShield(this))
{
    setFlag(ItemIsFocusScope);
    new FocusAnnouncer(this);
}

TQGuideView::~TQGuideView() = default;

bool TQGuideView::shouldShowGuide()
{
    const QVariant stored = platform().userDefault(flagKey());
    switch (stored.typeId()) {
    case QMetaType::Bool:
        return !stored.toBool();
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Float:
    case QMetaType::Double:
        return stored.toDouble() != 1;
    default:
        return true;
    }
}

std::shared_ptr<TQGuideView> TQGuideView::initFromNib(const Color &tintColor, const QStringList &descriptions,
                                                      const std::function<void()> &completeClosure)
{
    std::unique_ptr<QObject> root = makeFromNib(libraryBundle().root() + u"/Nibs/TQGuideView.qml");
    precondition(qobject_cast<TQGuideView *>(root.get()));
    std::shared_ptr<TQGuideView> view(static_cast<TQGuideView *>(root.release()), deferredDelete);
    // A host that outlives the application object must not keep the overlay alive.
    connect(applicationScope(), &QObject::destroyed, view.get(),
            [raw = view.get()] { const auto released = std::exchange(raw->m_hostReference, nullptr); });
    view->setBackgroundColor(tintColor);
    view->setDescriptions(descriptions);
    view->setCompleteClosure(completeClosure);
    const double width = platform().screenBounds().width();
    const double height = platform().screenBounds().height();
    view->setPosition({0, 0});
    view->setSize({width, height});
    return view;
}

QQuickItem *TQGuideView::guideLabel() const
{
    return m_guideLabel;
}

void TQGuideView::setGuideLabel(QQuickItem *label)
{
    if (m_guideLabel == label)
        return;
    m_guideLabel = label;
    Q_EMIT guideLabelChanged();
}

void TQGuideView::updateGuideLabel(const std::function<void(Outlet &)> &change)
{
    Outlet label = m_guideLabel;
    change(label);
    TQGuideView::setGuideLabel(label);
}

QQuickItem *TQGuideView::nextButton() const
{
    return m_nextButton;
}

void TQGuideView::setNextButton(QQuickItem *button)
{
    if (m_nextButton == button)
        return;
    m_nextButton = button;
    Q_EMIT nextButtonChanged();
}

void TQGuideView::updateNextButton(const std::function<void(Outlet &)> &change)
{
    Outlet button = m_nextButton;
    change(button);
    TQGuideView::setNextButton(button);
}

std::int64_t TQGuideView::index() const
{
    return m_index;
}

void TQGuideView::setIndex(std::int64_t index)
{
    m_index = index;
}

void TQGuideView::updateIndex(const std::function<void(std::int64_t &)> &change)
{
    change(m_index);
}

QStringList TQGuideView::descriptions() const
{
    return m_descriptions;
}

void TQGuideView::setDescriptions(const QStringList &descriptions)
{
    m_descriptions = descriptions;
}

void TQGuideView::updateDescriptions(const std::function<void(QStringList &)> &change)
{
    change(m_descriptions);
}

std::function<void()> TQGuideView::completeClosure() const
{
    return m_completeClosure;
}

void TQGuideView::setCompleteClosure(const std::function<void()> &closure)
{
    m_completeClosure = closure;
}

void TQGuideView::updateCompleteClosure(const std::function<void(std::function<void()> &)> &change)
{
    change(m_completeClosure);
}

void TQGuideView::showGuide(QQuickWindow *inWindow, QQuickItem *orInView)
{
    setOpacity(0);
    showParagraph();
    QQuickItem *host = orInView;
    if (QQuickWindow *window = keyWindow())
        host = window->contentItem();
    else if (inWindow)
        host = inWindow->contentItem();
    addAsTopmostChild(this, host);
    m_shield->updateStacking();
    announceParagraph();
    animateOpacity(this, 1, overlayFade, [alive = weak_from_this().lock()] {});
}

void TQGuideView::nextGuide(const QVariant &)
{
    // The closure may release the last other reference to the overlay.
    const auto alive = weak_from_this().lock();
    platform().softImpact();
    Q_EMIT tapped();
    required(nextButton())->setEnabled(false);
    updateIndex([](std::int64_t &index) {
        precondition(index < std::numeric_limits<std::int64_t>::max());
        ++index;
    });
    if (index() != descriptions().size()) {
        animateOpacity(required(guideLabel()), 0, labelFade, completion(&TQGuideView::showNextParagraph));
        return;
    }
    platform().setUserDefault(flagKey(), true);
    if (const auto closure = completeClosure())
        closure();
    animateOpacity(this, 0, overlayFade, completion(&TQGuideView::removeFromHost));
}

void TQGuideView::showNextParagraph()
{
    showParagraph();
    announceParagraph();
    animateOpacity(required(guideLabel()), 1, labelFade, completion(&TQGuideView::enableNextButton));
}

void TQGuideView::enableNextButton()
{
    required(nextButton())->setEnabled(true);
}

void TQGuideView::removeFromHost()
{
    setParentItem(nullptr);
}

// Completion of an animation: calls \a step and keeps the overlay alive until then. An overlay that no shared pointer
// owns may be destroyed before.
std::function<void()> TQGuideView::completion(void (TQGuideView::*step)())
{
    return [view = QPointer(this), alive = weak_from_this().lock(), step] {
        if (view)
            (view->*step)();
    };
}

void TQGuideView::showParagraph()
{
    const QStringList paragraphs = descriptions();
    const std::int64_t shown = index();
    precondition(shown >= 0 && shown < paragraphs.size());
    required(guideLabel())->setProperty("text", paragraphs.at(static_cast<qsizetype>(shown)));
}

void TQGuideView::announceParagraph()
{
    if (QQuickItem *label = guideLabel(); label && QAccessible::isActive()) {
        QAccessibleEvent alert(label, QAccessible::Alert);
        QAccessible::updateAccessibility(&alert);
    }
}

void TQGuideView::setBackgroundColor(const Color &color)
{
    if (m_backgroundColor == color)
        return;
    m_backgroundColor = color;
    Q_EMIT backgroundColorChanged();
}

QString TQGuideView::nextButtonName()
{
    //: Name, for screen readers, of the button that leads to the next page of an introduction.
    return libraryBundle().interfaceString(QLatin1String(QT_TRANSLATE_NOOP("TQFoundationInterface", "Next")));
}

void TQGuideView::itemChange(ItemChange change, const ItemChangeData &data)
{
    QQuickItem::itemChange(change, data);
    if (change == ItemParentHasChanged) {
        // Released last, because it may be the only reference to the overlay.
        const auto released = std::exchange(m_hostReference, data.item ? weak_from_this().lock() : nullptr);
        updateShownArea();
    } else if (change == ItemSceneChange) {
        if (m_window)
            m_window->disconnect(this);
        m_window = data.window;
        if (m_window)
            connect(m_window, &QQuickWindow::afterAnimating, this, &TQGuideView::updateShownArea);
        updateShownArea();
    }
}

void TQGuideView::updateShownArea()
{
    QRectF shown(0, 0, width(), height());
    if (m_window && m_window->contentItem()) {
        const QQuickItem *content = m_window->contentItem();
        // The content item of a window that another window renders may have no size.
        const QRectF window = mapRectFromItem(content, QRectF(QPointF(), m_window->size()));
        // A window may be larger than the screen, and so than the overlay.
        shown = parentItem() == content ? window : shown & window;
        for (const QQuickItem *ancestor = parentItem(); ancestor; ancestor = ancestor->parentItem()) {
            if (ancestor->clip())
                shown &= mapRectFromItem(ancestor, ancestor->clipRect());
        }
        shown &= mapRectFromItem(content, safeArea(*m_window));
    }
    if (m_shownArea == shown)
        return;
    m_shownArea = shown;
    Q_EMIT shownAreaChanged();
}

void TQGuideView::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    updateShownArea();
}

void TQGuideView::keyPressEvent(QKeyEvent *event)
{
    event->accept();
}

void TQGuideView::keyReleaseEvent(QKeyEvent *event)
{
    event->accept();
}

} // namespace TQFoundation
