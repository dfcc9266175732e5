#pragma once

#include <QString>
#include <optional>

// Runs test pages in a real browser: headless Chromium from the system's
// packages. Timers of the page run on virtual time, so a page that ticks
// every 100 ms shows several seconds of its life at once.
namespace browser {

// The Chromium program, or nothing where none is installed
// (QUILLET_CHROMIUM names another one).
std::optional<QString> chromium();

// The text every browser test skips with where there is no Chromium.
QString missingMessage();

struct Run {
    bool ok = false;   // the browser ran and answered
    QString dom;       // the page's DOM after its scripts ran
    QString error;     // what went wrong when not ok
};

// Opens a page file and answers its DOM after `virtualMs` of page time.
Run dumpDom(const QString& pagePath, int virtualMs = 3000);

}  // namespace browser
