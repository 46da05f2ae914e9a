#pragma once

#include "AnimationClock.h"
#include "KeyboardFocus.h"
#include "RecordingPlatform.h"
#include "Scenes.h"

#include <TQFoundation/TQGuideView.h>

#include <QtCore/qdir.h>
#include <QtCore/qfile.h>
#include <QtCore/qtemporarydir.h>
#include <QtQuick/qquickwindow.h>
#include <QtTest/qtest.h>

#include <gtest/gtest.h>

namespace TQFoundation::Testing {

/// Temporary library bundle whose guide nib is the given QML. Exists as long as this object.
class NibBundle
{
public:
    explicit NibBundle(const QByteArray &qml)
    {
        QDir(m_folder.path()).mkdir(QStringLiteral("Nibs"));
        QFile nib(m_folder.filePath(QStringLiteral("Nibs/TQGuideView.qml")));
        EXPECT_TRUE(nib.open(QIODevice::WriteOnly));
        nib.write(qml);
    }

    QString root() const { return m_folder.path(); }

private:
    QTemporaryDir m_folder;
};

/// Host of a guide: an active key window, a recording platform and an animation clock that the test advances.
class GuideHost : public testing::Test
{
protected:
    GuideHost()
    {
        window.setColor(Qt::white);
        window.resize(390, 700);
        EXPECT_TRUE(showWithFocus(window));
        platform->scenes = keyScene(&window);
    }

    // A guide that is not shown; it counts and records the call of its closure.
    std::shared_ptr<TQGuideView> made(const QStringList &paragraphs)
    {
        return TQGuideView::initFromNib(Color::systemBlue(), paragraphs, [this] {
            ++completed;
            platform->calls.append(QStringLiteral("completeClosure"));
        });
    }

    std::shared_ptr<TQGuideView> shown(const QStringList &paragraphs)
    {
        const auto guide = made(paragraphs);
        guide->showGuide();
        return guide;
    }

    static QStringList paragraphs(int count)
    {
        QStringList texts;
        for (int number = 0; number < count; ++number)
            texts += QStringLiteral("Paragraph %1").arg(number);
        return texts;
    }

    static QString textOf(const TQGuideView &guide) { return guide.guideLabel()->property("text").toString(); }

    void click(const QQuickItem *item)
    {
        const QPointF middle = item->mapToScene(QPointF(item->width() / 2, item->height() / 2));
        QTest::mouseClick(item->window(), Qt::LeftButton, {}, middle.toPoint());
    }

    InstalledRecordingPlatform platform;
    AnimationClock clock;
    QQuickWindow window;
    int completed = 0;
};

} // namespace TQFoundation::Testing
