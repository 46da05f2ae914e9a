#pragma once

#include <QtCore/qstring.h>

#include <ostream>

/// Lets a failed expectation show the text instead of its bytes. In the namespace of its argument, as the test framework
/// looks it up there.
inline void PrintTo(const QString &text, std::ostream *stream)
{
    *stream << '"' << text.toStdString() << '"';
}
