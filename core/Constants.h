#pragma once

#include <QList>
#include <QString>

namespace ql {

// Addresses of the product and its maker.
struct Addresses {
    static const QString ProductUrl;
    static const QString VendorUrl;
    static const QString DownloadUrl;
    static const QString VersionUrl;
    static const QString WhatsNewUrl;
};

// What an applet carries about its origin: its notice (the COPYRIGHT value),
// its author and the author's page (behind "Documentation found at: ").
struct AppletCredits {
    QString classFile;  // as CODE= writes it
    QString notice;
    QString author;
    QString website;
};

const QList<AppletCredits>& appletCredits();
// The credits of one applet; empty texts for an unknown class file.
AppletCredits creditsOf(const QString& classFile);

}  // namespace ql
