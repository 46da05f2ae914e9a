#include "LibraryEngine.h"

#include <QtCore/qcoreapplication.h>
#include <QtCore/qfile.h>
#include <QtCore/qurl.h>
#include <QtQml/qqmlabstracturlinterceptor.h>
#include <QtQml/qqmlcomponent.h>
#include <QtQml/qqmlengine.h>
#include <QtQuick/qquickitem.h>

#include <algorithm>
#include <utility>

namespace TQFoundation {
namespace {

/// Blocks every URL that is neither a resource nor a local file.
class LocalOnly final : public QQmlAbstractUrlInterceptor
{
public:
    QUrl intercept(const QUrl &url, DataType) override
    {
        const QString scheme = url.scheme();
        const bool local = scheme.isEmpty() || scheme == u"qrc" || scheme == u"file";
        return local ? url : QUrl();
    }
};

struct Library
{
    Library() { engine.addUrlInterceptor(&localOnly); }

    LocalOnly localOnly;
    QQmlEngine engine;
    QObject scope;
};

Library *instance = nullptr;

Library *library()
{
    if (!instance) {
        instance = new Library;
        // Reset before the deletion, because destructors that it runs may call library().
        qAddPostRoutine([] { delete std::exchange(instance, nullptr); });
    }
    return instance;
}

} // namespace

std::unique_ptr<QObject> makeFromNib(const QString &path, const QVariantMap &properties)
{
    QQmlComponent component(&library()->engine,
                            path.startsWith(u':') ? QUrl(QString(u"qrc" + path)) : QUrl::fromLocalFile(path));
    if (!component.isReady())
        return nullptr;
    std::unique_ptr<QObject> object(component.createWithInitialProperties(properties));
    if (object)
        QJSEngine::setObjectOwnership(object.get(), QJSEngine::CppOwnership);
    return object;
}

bool hasQmlModule(const QString &name)
{
    const QStringList folders = library()->engine.importPathList();
    return std::ranges::any_of(folders, [&name](const QString &folder) {
        const QString path = folder.startsWith(u"qrc:") ? folder.mid(3) : folder;
        return QFile::exists(path + u'/' + name + u"/qmldir");
    });
}

QObject *applicationScope()
{
    return &library()->scope;
}

void deferredDelete(QObject *object)
{
    if (!instance) {
        delete object;
        return;
    }
    if (auto *item = qobject_cast<QQuickItem *>(object))
        item->setParentItem(nullptr);
    object->setParent(&instance->scope);
    object->deleteLater();
}

} // namespace TQFoundation
