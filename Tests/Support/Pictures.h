#pragma once

#include "PrintQt.h"

#include <QtCore/qsysinfo.h>
#include <QtGui/qimage.h>
#include <QtQuick/qquickwindow.h>

#include <algorithm>
#include <cstdlib>

namespace TQFoundation::Testing {

/// Whether stored pictures were made on a system like this one. Fonts and rounding differ elsewhere.
inline bool arePicturesComparable()
{
    return QSysInfo::productType() == u"debian" && QSysInfo::productVersion() == u"12"
        && QSysInfo::currentCpuArchitecture() == u"x86_64" && qgetenv("QT_QUICK_BACKEND") == "software";
}

/// The largest difference of two pixels at one place, in one channel, from 0 to 255; 255 if the sizes differ.
inline int largestDifference(const QImage &one, const QImage &other)
{
    if (one.size() != other.size())
        return 255;
    int largest = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const QRgb a = one.pixel(x, y);
            const QRgb b = other.pixel(x, y);
            largest = std::max(
                {largest, std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)), std::abs(qBlue(a) - qBlue(b))});
        }
    }
    return largest;
}

/// Fails the running test if \a drawn is not the picture in \a file. With TQ_UPDATE_PICTURES in the environment it
/// writes the file instead.
inline void expectPictureInFile(const QImage &drawn, const QString &file)
{
    if (qEnvironmentVariableIsSet("TQ_UPDATE_PICTURES")) {
        EXPECT_TRUE(drawn.save(file));
        return;
    }
    const QImage stored(file);
    EXPECT_EQ(drawn.size(), stored.size()) << file.toStdString();
    // Processors differ in how they round.
    if (arePicturesComparable() && largestDifference(drawn, stored) > 2) {
        EXPECT_EQ(drawn, stored) << file.toStdString() << " differs. If the change is wanted: make pictures";
    }
}

/// Fails the running test if \a window does not look like Tests/Pictures/NAME.png.
inline void expectPicture(QQuickWindow &window, const char *name)
{
    expectPictureInFile(window.grabWindow(),
                        QStringLiteral(SUPPORT_FOLDER "/../Pictures/") + QLatin1String(name) + u".png");
}

} // namespace TQFoundation::Testing
