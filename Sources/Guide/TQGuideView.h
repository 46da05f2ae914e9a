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

/// The overlay that walks a new user through an app's paragraphs, one at a time, with a single next button. Once per
/// installation: the last tap stores a flag, tells the app, and the overlay fades out and removes itself.
///
/// An app asks shouldShowGuide(), makes the overlay with initFromNib() and calls showGuide() on it, once. Its host
/// holds the overlay while it is shown, and so does each animation until it has run; the app needs to keep nothing.
/// From adding to removal nothing that the user does reaches what lies beneath, and the keyboard focus stays inside.
///
/// A label or button that is not connected when it is used, and an index outside the paragraphs when one is read, stop
/// the process. Hosts written in QML use the type `TQGuide`; they do not declare this one. Main thread only.
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
    /// A label or button of the nib: null as soon as that goes.
    using Outlet = QPointer<QQuickItem>;

    /// An overlay without label, button and paragraphs, as the nib makes it. Apps call initFromNib().
    explicit TQGuideView(QQuickItem *parent = nullptr);
    ~TQGuideView() override;

    /// Whether the guide has not been finished yet in this installation: false only where the host's settings hold the
    /// boolean true, or the number 1, under "KeyOfDidShowGuide". Writes nothing.
    static bool shouldShowGuide();

    /// Makes an overlay that is not in any window yet, painted in \a tintColor and as large as the main screen is now.
    /// \a descriptions are the paragraphs in the order shown, plain text; \a completeClosure runs once, when the user
    /// taps past the last one, and may be empty. A nib that is missing or whose root is no TQGuideView stops the
    /// process.
    static std::shared_ptr<TQGuideView> initFromNib(const Color &tintColor, const QStringList &descriptions,
                                                    const std::function<void()> &completeClosure);

    // For each stored property: read, write, change in place. A label is any item with a property "text".

    /// The label that shows the current paragraph; not owned, null where it is not connected or has gone.
    virtual QQuickItem *guideLabel() const;
    /// Connects \a label, or nothing for null.
    virtual void setGuideLabel(QQuickItem *label);
    /// Lets \a change work on the stored label in place.
    virtual void updateGuideLabel(const std::function<void(Outlet &)> &change);

    /// The next button; not owned, null where it is not connected or has gone.
    virtual QQuickItem *nextButton() const;
    /// Connects \a button, or nothing for null.
    virtual void setNextButton(QQuickItem *button);
    /// Lets \a change work on the stored button in place.
    virtual void updateNextButton(const std::function<void(Outlet &)> &change);

protected:
    /// Which paragraph is shown, from 0; after a tap the one that is being faded in.
    virtual std::int64_t index() const;
    /// Sets the index; what is shown stays as it is until the next step reads it.
    virtual void setIndex(std::int64_t index);
    /// Lets \a change work on the stored index in place.
    virtual void updateIndex(const std::function<void(std::int64_t &)> &change);

    /// The paragraphs in the order shown.
    virtual QStringList descriptions() const;
    /// Sets the paragraphs; what is shown stays as it is until the next step reads them.
    virtual void setDescriptions(const QStringList &descriptions);
    /// Lets \a change work on the stored paragraphs in place.
    virtual void updateDescriptions(const std::function<void(QStringList &)> &change);

    /// What runs once when the user taps past the last paragraph; may be empty.
    virtual std::function<void()> completeClosure() const;
    /// Sets what runs at the end.
    virtual void setCompleteClosure(const std::function<void()> &closure);
    /// Lets \a change work on the stored closure in place.
    virtual void updateCompleteClosure(const std::function<void(std::function<void()> &)> &change);

public:
    /// Shows the current paragraph and fades the overlay in within 0.6 seconds, on top of all that its host holds: the
    /// key window of the app's active window scene, else \a inWindow, else \a orInView. Without any of them it is added
    /// nowhere. The overlay lies at the host's origin and keeps its size. No paragraphs stop the process.
    virtual void showGuide(QQuickWindow *inWindow = nullptr, QQuickItem *orInView = nullptr);

    /// What a tap on the next button does, whoever calls it: the next paragraph fades in (0.8 seconds, meanwhile the
    /// button is off), or, after the last one, the guide ends. \a sender is ignored. A call that leads past the last
    /// paragraph, or an index that overflows, stops the process.
    Q_INVOKABLE virtual void nextGuide(const QVariant &sender = {});

    /// What the whole overlay is painted in; it follows light and dark appearance.
    Color backgroundColor() const { return m_backgroundColor; }
    /// Paints the overlay in \a color from the next frame on.
    void setBackgroundColor(const Color &color);

    /// The part of the overlay that its window shows, clear of the system's bars, in the overlay's coordinates: a nib
    /// lays out its content there.
    QRectF shownArea() const { return m_shownArea; }

    /// What assistive technology calls the next button, in the user's language.
    static QString nextButtonName();

Q_SIGNALS:
    void guideLabelChanged(); ///< Another label is connected, or none.
    void nextButtonChanged(); ///< Another button is connected, or none.
    void backgroundColorChanged(); ///< It has another colour.
    void shownAreaChanged(); ///< Another part of it is shown.

    /// Answers each tap where the system has no haptics.
    void impactOccurred();

protected:
    /// @{ What the toolkit tells the item. A class that overrides it passes it on.
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    /// @}

private:
    std::function<void()> holding(void (TQGuideView::*step)());
    void showParagraph();
    void announceParagraph();
    void showNextParagraph();
    void takeTapsAgain();
    void removeFromHost();
    void forgetFocus();
    void stayAlive() {}

    void updateShownArea();

    InputShield *const m_shield; // a child

    Outlet m_guideLabel;
    Outlet m_nextButton;
    std::int64_t m_index = 0;
    QStringList m_descriptions;
    std::function<void()> m_completeClosure;

    Color m_backgroundColor;
    QRectF m_shownArea;
    std::shared_ptr<TQGuideView> m_heldByHost; // this, while it has a parent item
    QPointer<QQuickWindow> m_window;
};

} // namespace TQFoundation
