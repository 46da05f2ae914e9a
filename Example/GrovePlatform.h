#pragma once

#include "Options.h"

#include <TQFoundation/DesktopPlatform.h>

/// The platform of the example: a desktop whose screen is the example's window and whose storefront comes from the
/// command line. Install it before the library is first used. GUI thread.
class GrovePlatform : public TQFoundation::DesktopPlatform
{
public:
    /// Copies the size and the storefront of \a options.
    explicit GrovePlatform(const Options &options) : m_size(options.size), m_storefront(options.storefront) {}

    QSizeF screenBounds() const override { return m_size; }
    std::optional<QString> storefrontCountryCode() const override { return m_storefront; }

private:
    QSizeF m_size;
    std::optional<QString> m_storefront;
};
