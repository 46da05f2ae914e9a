#pragma once

#include <QtCore/qstring.h>

#include <ostream>

/// Lets a failed expectation show the text instead of its bytes. It stands in the namespace of its argument, where the
/// test framework looks for it.
inline void PrintTo(const QString &text, std::ostream *stream)
{
    *stream << '"' << text.toStdString() << '"';
}
