#pragma once

#include "Options.h"

#include <TQFoundation/DesktopPlatform.h>

/// The platform of the example: a desktop whose screen is the example's window, whose storefront comes from the command
/// line, and whose appearance the user can switch. Install it before the library is first used. GUI thread.
class GrovePlatform : public TQFoundation::DesktopPlatform
{
public:
    /// Copies the size, the storefront and the appearance of \a options.
    explicit GrovePlatform(const Options &options) : m_size(options.size), m_storefront(options.storefront)
    {
        if (options.dark)
            m_appearance = TQFoundation::Appearance::dark;
    }

    /// Makes the app dark or light, whatever the system is.
    void setAppearance(TQFoundation::Appearance appearance)
    {
        m_appearance = appearance;
        TQFoundation::appearanceChanged();
    }

    QSizeF screenBounds() const override { return m_size; }
    std::optional<TQFoundation::Appearance> appearance() const override { return m_appearance; }
    std::optional<QString> storefrontCountryCode() const override { return m_storefront; }

private:
    QSizeF m_size;
    std::optional<QString> m_storefront;
    std::optional<TQFoundation::Appearance> m_appearance;
};
