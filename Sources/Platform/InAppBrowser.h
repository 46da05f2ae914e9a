#pragma once

#include "TQFoundation/Color.h"
#include "TQFoundation/tqfoundation_export.h"
#include "TQFoundation/ViewController.h"

namespace TQFoundation {

/// The system's in-app browser for one web page. It loads nothing before it is presented, and dismisses itself when the
/// user closes it. GUI thread only.
class TQFOUNDATION_EXPORT InAppBrowser : public ViewController
{
    Q_OBJECT

public:
    /// The label of the button that closes the browser.
    enum class DismissButtonStyle { done, close, cancel };
    Q_ENUM(DismissButtonStyle)

    /// How much of the window the browser covers: all of it, or, as a sheet, most of it.
    enum class ModalPresentationStyle { fullScreen, pageSheet };
    Q_ENUM(ModalPresentationStyle)

    using ViewController::ViewController;

    /// Sets the colour of the browser's own buttons. Call it before the browser is presented.
    virtual void setPreferredControlTintColor(const Color &color) = 0;

    /// Sets the label of the button that closes the browser. Call it before the browser is presented.
    virtual void setDismissButtonStyle(DismissButtonStyle style) = 0;

    /// Sets how much of the window the browser covers. Call it before the browser is presented.
    virtual void setModalPresentationStyle(ModalPresentationStyle style) = 0;
};

} // namespace TQFoundation
