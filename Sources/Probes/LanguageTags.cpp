#include "LanguageTags.h"

#include <QtCore/qlocale.h>

namespace TQFoundation {

QStringList tableNames(const QStringList &languageTags)
{
    QStringList names;
    for (const QString &tag : languageTags) {
        const QLocale locale(tag);
        if (locale.language() == QLocale::C)
            continue;
        const QString language = QLocale::languageToCode(locale.language());
        names += QString(language + u'_' + QLocale::scriptToCode(locale.script()));
        names += QString(language + u'_' + QLocale::territoryToCode(locale.territory()));
        names += language;
    }
    names.removeDuplicates();
    return names;
}

} // namespace TQFoundation
