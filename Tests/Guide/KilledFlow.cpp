// An app with settings of its own that finishes its guide after 5 ms. Prints a line when it starts, and runs until it
// is killed.

#include <TQFoundation/TQGuideView.h>

#include <QtCore/qsettings.h>
#include <QtCore/qtimer.h>
#include <QtGui/qguiapplication.h>

#include <cstdio>

int main(int argc, char *argv[])
{
    QGuiApplication application(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("TQFoundation"));
    QCoreApplication::setApplicationName(QStringLiteral("KilledFlow"));
    const auto guide =
        TQFoundation::TQGuideView::initFromNib(TQFoundation::Color::systemBlue(), {QStringLiteral("Text")}, nullptr);
    guide->showGuide();
    std::printf("%d\n", TQFoundation::TQGuideView::shouldShowGuide());
    std::fflush(stdout);
    QTimer::singleShot(5, guide.get(), [&] { guide->nextGuide(); });
    return QGuiApplication::exec();
}
