#pragma once

#include <QtCore/qstring.h>

#include <ostream>

/// Makes GoogleTest print a QString as text. Global, because GoogleTest finds it by argument-dependent lookup.
inline void PrintTo(const QString &text, std::ostream *stream)
{
    *stream << '"' << text.toStdString() << '"';
}
