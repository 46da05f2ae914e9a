// Arbitrary bytes as an app's settings file. Reading the flag changes nothing. Writing it leaves a file that cannot be
// read whole as it is; in any other the flag is true afterwards and every other setting is what it was.

#include "Require.h"

#include <TQFoundation/DesktopPlatform.h>

#include <QtCore/qdir.h>
#include <QtCore/qfile.h>
#include <QtCore/qsettings.h>
#include <QtCore/qstringconverter.h>
#include <QtCore/qtemporarydir.h>
#include <QtGui/qguiapplication.h>

#include <cstdint>

using TQFoundation::Fuzzing::require;

namespace {

const QString flag = QStringLiteral("KeyOfDidShowGuide");

/// An app in a home of its own. Settings are parsed once per file and process, so each input gets a file name of its
/// own.
struct App
{
    App()
    {
        qputenv("XDG_CONFIG_HOME", home.path().toUtf8());
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, home.path());
        QCoreApplication::setOrganizationName(QStringLiteral("Fuzzers"));
        QDir(home.path()).mkdir(QStringLiteral("Fuzzers"));
    }

    QString file() const
    {
        return QString(home.path() + u"/Fuzzers/" + QCoreApplication::applicationName() + u".conf");
    }

    int count = 1;
    char name[8] = "Fuzzers";
    char *arguments[2] = {name, nullptr};
    QTemporaryDir home;
    QGuiApplication application{count, arguments};
};

QByteArray contents(const QString &path)
{
    QFile file(path);
    require(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

void write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    require(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
}

bool isList(const QVariant &value)
{
    return value.typeId() == QMetaType::QStringList || value.typeId() == QMetaType::QVariantList;
}

// All settings but the flag, as the texts that stand for them: a file keeps no types, and some of those that it tells
// of have neither a text nor an equality. An empty list is written as no value at all, and a mark of byte order
// after an escape is lost on Qt's way back.
QMap<QString, QStringList> others(const QString &path)
{
    const QSettings settings(path, QSettings::NativeFormat);
    QMap<QString, QStringList> values;
    const QStringList keys = settings.allKeys();
    for (const QString &key : keys) {
        if (key == flag)
            continue;
        const QVariant value = settings.value(key);
        QStringList texts = isList(value) || !value.isValid() ? value.toStringList() : QStringList{value.toString()};
        values.insert(key, texts.replaceInStrings(QString(QChar::ByteOrderMark), QString()));
    }
    return values;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static App app;
    static quint64 run = 0;
    QCoreApplication::setApplicationName(QString::number(++run));
    const QString path = app.file();
    const QByteArray before(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    write(path, before);
    const QString copy = path + u".copy.conf";
    write(copy, before);
    {
        TQFoundation::DesktopPlatform platform;
        static_cast<void>(platform.userDefault(flag));
        require(contents(path) == before);
        platform.setUserDefault(flag, true);
    }
    if (contents(path) != before) {
        QStringDecoder utf8(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
        const QString text = utf8.decode(before);
        require(!utf8.hasError());
        const QMap<QString, QStringList> kept = others(copy);
        const QString again = path + u".again.conf";
        require(QFile::copy(path, again));
        const QMap<QString, QStringList> left = others(again);
        for (auto setting = kept.begin(); setting != kept.end(); ++setting)
            require(left.contains(setting.key()) && left[setting.key()] == setting.value());
        require(QSettings(again, QSettings::NativeFormat).value(flag).toString() == u"true");
        QFile::remove(again);
    }
    QFile::remove(copy);
    QFile::remove(path);
    return 0;
}
