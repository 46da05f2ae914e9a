#pragma once

#include "TQFoundation/Color.h"
#include "TQFoundation/tqfoundation_export.h"

#include <QtCore/qpointer.h>
#include <QtCore/qrect.h>
#include <QtCore/qstringlist.h>
#include <QtCore/qvariant.h>
#include <QtQml/qqmlregistration.h>
#include <QtQuick/qquickitem.h>
#include <QtQuick/qquickwindow.h>

#include <cstdint>
#include <functional>
#include <memory>

namespace TQFoundation {

class InputShield;

/// Full-screen overlay that shows the paragraphs of an app's introduction, one at a time, with a next button.
///
/// Shown once per installation: the tap past the last paragraph stores a flag, calls the app's closure, fades the
/// overlay out and removes it. Make it with initFromNib() if shouldShowGuide() is true, then call showGuide() once. Its
/// parent item and its running animations share its ownership, so the app need not keep it. While it is in a window it
/// consumes all input meant for items below it and keeps the focus, until a sheet is presented above it.
///
/// The process stops if a label or button is missing when it is used, or if the index is outside the paragraphs when
/// one is read. Not for use in QML: hosts declare `TQGuide` instead. GUI thread.
class TQFOUNDATION_EXPORT TQGuideView : public QQuickItem, public std::enable_shared_from_this<TQGuideView>
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQuickItem *guideLabel READ guideLabel WRITE setGuideLabel NOTIFY guideLabelChanged)
    Q_PROPERTY(QQuickItem *nextButton READ nextButton WRITE setNextButton NOTIFY nextButtonChanged)
    Q_PROPERTY(TQFoundation::Color backgroundColor READ backgroundColor WRITE setBackgroundColor NOTIFY
                   backgroundColorChanged FINAL)
    Q_PROPERTY(QRectF shownArea READ shownArea NOTIFY shownAreaChanged FINAL)
    Q_PROPERTY(QString nextButtonName READ nextButtonName CONSTANT FINAL)

public:
    /// Weak reference to an item of the nib; null once the item is destroyed.
    using Outlet = QPointer<QQuickItem>;

    /// Makes an overlay without label, button and paragraphs. For the nib; apps call initFromNib().
    explicit TQGuideView(QQuickItem *parent = nullptr);
    ~TQGuideView() override;

    /// Whether the guide has not been finished in this installation: false exactly if the host's settings hold the
    /// boolean true or the number 1 under "KeyOfDidShowGuide". Reads them at each call and writes nothing.
    static bool shouldShowGuide();

    /// Makes an overlay in no window, painted in \a tintColor, with the current size of the main screen in points; the
    /// size does not change later.
    ///
    /// \a descriptions are the paragraphs in the order shown, as plain text. \a completeClosure is called at the tap
    /// past the last one, before the overlay fades out; it may be empty. The overlay keeps it as long as it lives. The
    /// process stops if the nib is missing or its root is not a TQGuideView. Never null.
    static std::shared_ptr<TQGuideView> initFromNib(const Color &tintColor, const QStringList &descriptions,
                                                    const std::function<void()> &completeClosure);

    // Each stored property has three virtual functions: read, write and change in place.

    /// The item whose property "text" is the current paragraph; not owned, null if it is not set or was destroyed.
    virtual QQuickItem *guideLabel() const;
    /// Sets the label; null for no label. Ownership stays with the caller.
    virtual void setGuideLabel(QQuickItem *label);
    /// Calls \a change, once and before it returns, with the stored label.
    virtual void updateGuideLabel(const std::function<void(Outlet &)> &change);

    /// The next button; not owned, null if it is not set or was destroyed.
    virtual QQuickItem *nextButton() const;
    /// Sets the next button; null for no button. Ownership stays with the caller.
    virtual void setNextButton(QQuickItem *button);
    /// Calls \a change, once and before it returns, with the stored button.
    virtual void updateNextButton(const std::function<void(Outlet &)> &change);

protected:
    /// Index of the paragraph that is shown, from 0; after a tap, of the one that fades in next.
    virtual std::int64_t index() const;
    /// Sets the index. The label changes only when the next step reads it.
    virtual void setIndex(std::int64_t index);
    /// Calls \a change, once and before it returns, with the stored index.
    virtual void updateIndex(const std::function<void(std::int64_t &)> &change);

    /// The paragraphs in the order shown.
    virtual QStringList descriptions() const;
    /// Sets the paragraphs. The label changes only when the next step reads them.
    virtual void setDescriptions(const QStringList &descriptions);
    /// Calls \a change, once and before it returns, with the stored paragraphs.
    virtual void updateDescriptions(const std::function<void(QStringList &)> &change);

    /// Function that is called at the tap past the last paragraph; may be empty.
    virtual std::function<void()> completeClosure() const;
    /// Sets the function that is called at the tap past the last paragraph.
    virtual void setCompleteClosure(const std::function<void()> &closure);
    /// Calls \a change, once and before it returns, with the stored closure.
    virtual void updateCompleteClosure(const std::function<void(std::function<void()> &)> &change);

public:
    /// Shows the current paragraph and fades the overlay in within 0.6 seconds.
    ///
    /// The overlay becomes the topmost child of the key window's content item, even if \a inWindow is another window.
    /// If no window is key, \a inWindow is used, else \a orInView, else it gets no parent. It keeps its size and
    /// its position at the origin. Stops the process if there are no paragraphs. A later call repeats all of this.
    virtual void showGuide(QQuickWindow *inWindow = nullptr, QQuickItem *orInView = nullptr);

    /// Handles a tap on the next button; \a sender is ignored. The next paragraph fades in within 0.8 seconds, during
    /// which the button is disabled. After the last paragraph the guide ends instead.
    ///
    /// Stops the process if it is called again after the guide has ended, or if the index overflows.
    Q_INVOKABLE virtual void nextGuide(const QVariant &sender = {});

    /// Color of the whole overlay, translucent if the color is. Follows light and dark appearance.
    Color backgroundColor() const { return m_backgroundColor; }
    /// Paints the overlay in \a color, starting with the next frame.
    void setBackgroundColor(const Color &color);

    /// The part of the overlay that is visible in its window and clear of the system's bars, in the overlay's
    /// coordinates. The nib lays out its content there. The whole overlay if it is in no window; more than the overlay
    /// if it lies directly in a window that is larger.
    QRectF shownArea() const { return m_shownArea; }

    /// Accessible name of the next button, in the user's language.
    static QString nextButtonName();

Q_SIGNALS:
    void guideLabelChanged(); ///< Emitted if setGuideLabel() sets another label or null.
    void nextButtonChanged(); ///< Emitted if setNextButton() sets another button or null.
    void backgroundColorChanged(); ///< Emitted if setBackgroundColor() changes the color.
    void shownAreaChanged(); ///< Emitted if shownArea() changes.

    /// Emitted at each tap, also if the system has haptics, after Platform::softImpact() and before the button is
    /// disabled. The nib answers it with a short pulse of the button.
    void tapped();

protected:
    /// @{ Overrides of QQuickItem; a derived class must call them.
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    /// @}

private:
    std::function<void()> completion(void (TQGuideView::*step)());
    void showParagraph();
    void announceParagraph();
    void showNextParagraph();
    void enableNextButton();
    void removeFromHost();
    void updateShownArea();

    InputShield *const m_shield; // a child

    Outlet m_guideLabel;
    Outlet m_nextButton;
    std::int64_t m_index = 0;
    QStringList m_descriptions;
    std::function<void()> m_completeClosure;

    Color m_backgroundColor;
    QRectF m_shownArea;
    std::shared_ptr<TQGuideView> m_hostReference; // this, while it has a parent item
    QPointer<QQuickWindow> m_window;
};

} // namespace TQFoundation
