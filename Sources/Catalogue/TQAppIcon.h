#pragma once

#include "TQFoundation/TQApp.h"

#include <QtGui/qimage.h>
#include <QtQuick/qquickitem.h>

#include <optional>

namespace TQFoundation {

/// Shows the icon of one app, 36 by 36 points unless it is given another size; to that it is stretched.
///
/// The icon is read when the item is complete and at each later change of `app`. Nothing is added to the artwork, which
/// carries its own shape.
class TQAppIcon : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(TQFoundation::TQApp app READ app WRITE setApp NOTIFY appChanged REQUIRED FINAL)
    Q_PROPERTY(bool empty READ isEmpty NOTIFY emptyChanged FINAL)
    Q_PROPERTY(QString caseName READ caseName NOTIFY appChanged FINAL)

public:
    explicit TQAppIcon(QQuickItem *parent = nullptr);

    TQApp app() const { return m_app.value_or(TQApp()); }
    void setApp(TQApp app);

    /// Whether there is nothing to show: the icon could not be prepared, or the item is not complete.
    bool isEmpty() const { return m_image.isNull(); }

    /// The app's case as a name ("Larch"), for assistive technology. Not translated.
    QString caseName() const;

Q_SIGNALS:
    void appChanged();
    void emptyChanged();

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
