#include "LibraryEngine.h"

#include "Url.h"

#include <QtCore/qcoreapplication.h>
#include <QtCore/qfile.h>
#include <QtCore/qpointer.h>
#include <QtCore/qscopedvaluerollback.h>
#include <QtGui/qguiapplication.h>
#include <QtQml/qqmlabstracturlinterceptor.h>
#include <QtQml/qqmlcomponent.h>
#include <QtQml/qqmlengine.h>
#include <QtQuick/qquickitem.h>
#include <QtQuick/qquickwindow.h>

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
    LocalOnly localOnly;
    std::unique_ptr<QQmlEngine> engine; // created on first use: it is expensive
    QObject scope;
};

Library *instance = nullptr;
bool isEnding = false;

Library *library()
{
    if (!instance) {
        hideWindowsAtExit();
        instance = new Library;
        qAddPostRoutine([] {
            const QScopedValueRollback ending(isEnding, true);
            delete std::exchange(instance, nullptr);
        });
    }
    return instance;
}

QQmlEngine *libraryEngine()
{
    auto &engine = library()->engine;
    if (!engine) {
        engine = std::make_unique<QQmlEngine>();
        engine->addUrlInterceptor(&library()->localOnly);
    }
    return engine.get();
}

} // namespace

std::unique_ptr<QObject> makeFromNib(const QString &path, const QVariantMap &properties)
{
    QQmlComponent component(libraryEngine(), urlOfFile(path));
    if (!component.isReady())
        return nullptr;
    std::unique_ptr<QObject> object(component.createWithInitialProperties(properties));
    if (object)
        QJSEngine::setObjectOwnership(object.get(), QJSEngine::CppOwnership);
    return object;
}

bool hasQmlModule(const QString &name)
{
    const QStringList folders = libraryEngine()->importPathList();
    return std::ranges::any_of(folders, [&name](const QString &folder) {
        const QString path = folder.startsWith(u"qrc:") ? folder.mid(3) : folder;
        return QFile::exists(path + u'/' + name + u"/qmldir");
    });
}

QObject *applicationScope()
{
    return &library()->scope;
}

void hideWindowsAtExit()
{
    // exit() destroys the calling thread's thread-local objects before all static ones, even if a render thread creates
    // those later. The render thread of a window has stopped drawing when hide() returns.
    struct Hider
    {
        ~Hider()
        {
            if (!QCoreApplication::instance())
                return;
            const QWindowList all = QGuiApplication::allWindows();
            // A handler of visibleChanged() may destroy other windows.
            const QList<QPointer<QWindow>> windows(all.begin(), all.end());
            for (const QPointer<QWindow> &window : windows) {
                if (auto *quickWindow = qobject_cast<QQuickWindow *>(window.data()))
                    quickWindow->hide();
            }
        }
    };
    thread_local const Hider hider;
}

void deferredDelete(QObject *object)
{
    if (isEnding || !QCoreApplication::instance()) {
        delete object;
        return;
    }
    if (auto *item = qobject_cast<QQuickItem *>(object))
        item->setParentItem(nullptr);
    object->setParent(applicationScope());
    object->deleteLater();
}

} // namespace TQFoundation
