#pragma once

#include "GuideHost.h"

#include <QtQml/qqml.h>

namespace TQFoundation::Testing {

/// Recording overlay: appends the calls of its virtual functions to a log and publishes the protected ones.
class RecordingGuideView : public TQGuideView
{
    Q_OBJECT

public:
    explicit RecordingGuideView(QQuickItem *parent = nullptr) : TQGuideView(parent)
    {
        connect(this, &TQGuideView::backgroundColorChanged, [] { note("backgroundColorChanged"); });
    }

    static QStringList &log()
    {
        static QStringList *const calls = new QStringList;
        return *calls;
    }

    QQuickItem *guideLabel() const override { return note("guideLabel"), TQGuideView::guideLabel(); }
    QQuickItem *nextButton() const override { return note("nextButton"), TQGuideView::nextButton(); }
    std::int64_t index() const override { return note("index"), TQGuideView::index(); }
    void updateIndex(const std::function<void(std::int64_t &)> &change) override
    {
        note("updateIndex");
        TQGuideView::updateIndex(change);
    }
    QStringList descriptions() const override { return note("descriptions"), TQGuideView::descriptions(); }
    void setDescriptions(const QStringList &descriptions) override
    {
        note("setDescriptions");
        TQGuideView::setDescriptions(descriptions);
    }
    std::function<void()> completeClosure() const override
    {
        return note("completeClosure"), TQGuideView::completeClosure();
    }
    void setCompleteClosure(const std::function<void()> &closure) override
    {
        note("setCompleteClosure");
        TQGuideView::setCompleteClosure(closure);
    }

    using TQGuideView::setIndex;
    using TQGuideView::updateCompleteClosure;
    using TQGuideView::updateDescriptions;

private:
    static void note(const char *call) { log() += QLatin1String(call); }
};

/// A nib whose root is a RecordingGuideView with the given \a outlets.
inline QByteArray recordingNib(const QByteArray &outlets = "guideLabel: label; nextButton: button")
{
    return "import QtQuick\nimport TQFoundationTests\nRecordingGuideView { " + outlets
        + "\nText { id: label }\nItem { id: button } }";
}

/// Host of a RecordingGuideView, which is made from a nib with a label and a button.
class RecordingGuideHost : public GuideHost
{
protected:
    std::shared_ptr<RecordingGuideView> recording(const QStringList &texts, const QByteArray &nib = recordingNib())
    {
        static const int type [[maybe_unused]] =
            qmlRegisterType<RecordingGuideView>("TQFoundationTests", 1, 0, "RecordingGuideView");
        const NibBundle bundle(nib);
        platform->root = bundle.root();
        const auto guide = std::dynamic_pointer_cast<RecordingGuideView>(made(texts));
        EXPECT_TRUE(guide);
        return guide;
    }

    std::shared_ptr<RecordingGuideView> shownRecording(const QStringList &texts)
    {
        const auto guide = recording(texts);
        guide->showGuide();
        return guide;
    }
};

} // namespace TQFoundation::Testing
