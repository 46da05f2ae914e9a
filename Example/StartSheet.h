#pragma once

struct Options;

/// Presents the sheet that \a options ask for on the key window: the mail composer, the in-app browser, or nothing.
/// GUI thread.
void presentStartSheet(const Options &options);
