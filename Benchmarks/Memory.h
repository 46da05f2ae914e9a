#pragma once

#include <QtCore/qfile.h>

/// Private memory of the process in KiB. Pages of files are shared and do not count.
inline qint64 memory()
{
    QFile status(QStringLiteral("/proc/self/smaps_rollup"));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray &row : status.readAll().split('\n')) {
        if (row.startsWith("Anonymous:"))
            return row.simplified().split(' ').value(1).toLongLong();
    }
    return 0;
}
