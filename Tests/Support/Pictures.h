#pragma once

#include "PrintQt.h"

#include <QtCore/qsysinfo.h>
#include <QtGui/qimage.h>
#include <QtQuick/qquickwindow.h>

namespace TQFoundation::Testing {

/// Whether stored pictures were made on a system like this one. Fonts and rounding differ elsewhere.
inline bool arePicturesComparable()
{
    return QSysInfo::productType() == u"debian" && QSysInfo::productVersion() == u"12"
        && QSysInfo::currentCpuArchitecture() == u"x86_64" && qgetenv("QT_QUICK_BACKEND") == "software";
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
    if (arePicturesComparable()) {
        EXPECT_EQ(drawn.convertToFormat(QImage::Format_RGB32), stored.convertToFormat(QImage::Format_RGB32))
            << file.toStdString() << " differs. If the change is wanted: make pictures";
    }
}

/// Fails the running test if \a window does not look like Tests/Pictures/NAME.png.
inline void expectPicture(QQuickWindow &window, const char *name)
{
    expectPictureInFile(window.grabWindow(),
                        QStringLiteral(SUPPORT_FOLDER "/../Pictures/") + QLatin1String(name) + u".png");
}

} // namespace TQFoundation::Testing
