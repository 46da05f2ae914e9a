#pragma once

#include <QtCore/qdir.h>
#include <QtCore/qstring.h>
#include <QtGui/qimage.h>

#include <gtest/gtest.h>

#include <ostream>

// Functions by which GoogleTest prints values of Qt. Global, because it finds them by argument-dependent lookup.

/// Prints a QString as text.
inline void PrintTo(const QString &text, std::ostream *stream)
{
    *stream << '"' << text.toStdString() << '"';
}

/// Saves a QImage to the folder failed-pictures and prints the file's name.
inline void PrintTo(const QImage &image, std::ostream *stream)
{
    static int count = 0;
    const testing::TestInfo &test = *testing::UnitTest::GetInstance()->current_test_info();
    const QDir folder(QStringLiteral("failed-pictures"));
    folder.mkpath(QStringLiteral("."));
    const QString name = QStringLiteral("%1.%2-%3.png")
                             .arg(QLatin1String(test.test_suite_name()), QLatin1String(test.name()))
                             .arg(++count);
    image.save(folder.filePath(name));
    *stream << folder.absoluteFilePath(name).toStdString();
}
