#pragma once

#include "TQFoundation/Color.h"
#include "TQFoundation/tqfoundation_export.h"
#include "TQFoundation/ViewController.h"

namespace TQFoundation {

/// The system's browser for one web page inside the app. It loads nothing before it is presented, and takes itself away
/// when the user closes it. Main thread only.
class TQFOUNDATION_EXPORT InAppBrowser : public ViewController
{
    Q_OBJECT

public:
    /// What the button that closes the browser says.
    enum class DismissButtonStyle { done, close, cancel };
    Q_ENUM(DismissButtonStyle)

    /// How much of the window the browser covers: all of it, or, as a sheet, most of it.
    enum class ModalPresentationStyle { fullScreen, pageSheet };
    Q_ENUM(ModalPresentationStyle)

    using ViewController::ViewController;

    /// What the browser's own buttons are painted in.
    virtual void setPreferredControlTintColor(const Color &color) = 0;

    /// What the button that closes the browser says. Set it before the browser is presented.
    virtual void setDismissButtonStyle(DismissButtonStyle style) = 0;
    /// How much of the window the browser covers. Set it before the browser is presented.
    virtual void setModalPresentationStyle(ModalPresentationStyle style) = 0;
};

} // namespace TQFoundation
