#pragma once

#include "TQFoundation/TQApp.h"

#include <QtGui/qimage.h>
#include <QtQuick/qquickitem.h>

#include <optional>

namespace TQFoundation {

/// The QML item `TQAppIcon`: the icon of one app, stretched to the item's size. Its implicit size is TQApp::iconSide
/// points square.
///
/// The icon is decoded when the item is complete and at each change of `app`. The artwork is shown as it is: it brings
/// its own shape. `TQAppIcon { app: TQApp.hazel }`. GUI thread.
class TQAppIcon : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT
    /// `tqApp`, required: the app whose icon is shown. `app: TQApp.hazel`.
    Q_PROPERTY(TQFoundation::TQApp app READ app WRITE setApp NOTIFY appChanged REQUIRED FINAL)
    /// `bool`: whether the item shows nothing, because it is incomplete or the icon is null. `visible: !empty`.
    Q_PROPERTY(bool empty READ isEmpty NOTIFY emptyChanged FINAL)
    /// `string`: the app's case name in English, for accessibility. `Accessible.name: caseName // "Hazel"`.
    Q_PROPERTY(QString caseName READ caseName NOTIFY appChanged FINAL)

public:
    explicit TQAppIcon(QQuickItem *parent = nullptr);

    TQApp app() const { return m_app.value_or(TQApp()); }
    void setApp(TQApp app);
    bool isEmpty() const { return m_image.isNull(); }
    QString caseName() const;

Q_SIGNALS:
    void appChanged(); ///< The app, and with it caseName, has changed.
    void emptyChanged(); ///< Whether there is something to show has changed.

protected:
    void componentComplete() override;
    QSGNode *updatePaintNode(QSGNode *node, UpdatePaintNodeData *data) override;

private:
    void readIcon();

    std::optional<TQApp> m_app;
    QImage m_image;
    bool m_imageChanged = false;
};

} // namespace TQFoundation
