#include "GuideHost.h"
#include "Languages.h"
#include "Pictures.h"

namespace TQFoundation {
namespace {

using Testing::expectPicture;

class GuidePictures : public Testing::GuideHost
{
protected:
    std::shared_ptr<TQGuideView> shownIn(QSize size, const Color &color, const QString &text)
    {
        window.resize(size);
        platform->bounds = size;
        const auto guide = TQGuideView::initFromNib(color, {text, text}, [] {});
        guide->showGuide();
        clock.pass(600);
        return guide;
    }

    static QString longText() { return QStringLiteral("The quick brown fox jumps over the lazy dog. ").repeated(40); }
};

TEST_F(GuidePictures, OfAScrolledParagraph)
{
    const auto guide = shownIn({320, 480}, Color::systemBlue(), longText());
    expectPicture(window, "guide-long");
    QTest::keyClick(&window, Qt::Key_Tab);
    QTest::keyClick(&window, Qt::Key_PageDown);
    clock.pass(400);
    expectPicture(window, "guide-scrolled");
}

TEST_F(GuidePictures, OfAHugeParagraph)
{
    const auto guide = shownIn({320, 240}, Color::systemBlue(), longText().repeated(5));
    expectPicture(window, "guide-huge");
}

TEST_F(GuidePictures, OfAPulse)
{
    const auto guide = shownIn({390, 700}, Rgba{1, 0.58F, 0}, QStringLiteral("A short paragraph"));
    click(guide->nextButton());
    clock.pass(50);
    expectPicture(window, "guide-pulse-begins");
    clock.pass(100);
    expectPicture(window, "guide-pulse-ends");
}

TEST_F(GuidePictures, InAWideDarkWindowFromRightToLeft)
{
    Testing::useLanguage("ar");
    platform->currentAppearance = Appearance::dark;
    const auto guide = shownIn({1024, 500}, Rgba{1, 0.8F, 0}, QStringLiteral("فقرة قصيرة"));
    QTest::keyClick(&window, Qt::Key_Tab);
    expectPicture(window, "guide-wide-arabic-dark");
}

} // namespace
} // namespace TQFoundation
