#include "core/Constants.h"

namespace ql {

const QString Addresses::ProductUrl = QStringLiteral("http://www.quillet-fx.com/");
const QString Addresses::VendorUrl = QStringLiteral("http://www.quillet-fx.com/company/");
const QString Addresses::DownloadUrl = QStringLiteral("http://www.quillet-fx.com/download/");
const QString Addresses::VersionUrl = QStringLiteral("http://www.quillet-fx.com/qlversion.txt");
const QString Addresses::WhatsNewUrl = QStringLiteral("http://www.quillet-fx.com/qlwhatsnew.txt");

const QList<AppletCredits>& appletCredits()
{
    static const QList<AppletCredits> credits = {
        {"Animate1.class", "Animate1 applet (c) Copyright 1998 Tessellate Software", "Tessellate Software",
         "http://www.tessellate-sw.com/applets/"},
        {"ButtonPLUS3.class", "ButtonPLUS3 applet (c) Copyright 1998 Tessellate Software", "Tessellate Software",
         "http://www.tessellate-sw.com/applets/"},
        {"Clock1.class", "Clock1 applet (c) Copyright 1998 Tessellate Software", "Tessellate Software",
         "http://www.tessellate-sw.com/applets/"},
        {"ColorSwirl.class", "ColorSwirl applet (c) Copyright 1997 Tessellate Software", "Tessellate Software",
         "http://www.tessellate-sw.com/applets/"},
        {"Typewriter4.class", "Typewriter4 applet (c) Copyright 1998 Tessellate Software", "Tessellate Software",
         "http://www.tessellate-sw.com/applets/"},
        {"SimpleSound1.class", "SimpleSound1 applet (c) Copyright 1998 Tessellate Software", "Tessellate Software",
         "http://www.tessellate-sw.com/applets/"},
        {"FadeText.class", "FadeText applet (c) Copyright 1997 Marrow Lane Labs", "Marrow Lane Labs",
         "http://www.marrowlane.net/java/"},
        {"NavigatorTicker20.class", "NavigatorTicker applet (c) Copyright 1997 Harbour Point Media",
         "Harbour Point Media", "http://www.harbourpoint.net/ticker/"},
        {"RTLScroll.class", "RTLScroll applet (c) Copyright 1998 Kestrel Applets", "Kestrel Applets",
         "http://www.kestrel-applets.com/"},
        {"LTRScroll.class", "LTRScroll applet (c) Copyright 1998 Kestrel Applets", "Kestrel Applets",
         "http://www.kestrel-applets.com/"},
        {"AnFade.class", "AnFade applet (c) Copyright 1997 Orin Vale", "Orin Vale", "http://www.orinvale.org/java/"},
        {"TmapCube.class", "TmapCube applet (c) Copyright 1997 Orin Vale", "Orin Vale",
         "http://www.orinvale.org/java/"},
        {"Lake.class", "Lake applet (c) Copyright 1997 Dunmore Graphics", "Dunmore Graphics",
         "http://www.dunmore-graphics.com/lake/"},
        {"ripple.class", "ripple applet (c) Copyright 1997 Dunmore Graphics", "Dunmore Graphics",
         "http://www.dunmore-graphics.com/ripple/"},
        {"ImageFade2ech.class", "ImageFade applet (c) Copyright 1998 Pellworth Studio", "Pellworth Studio",
         "http://www.pellworth.com/imagefade/"},
    };
    return credits;
}

AppletCredits creditsOf(const QString& classFile)
{
    for (const AppletCredits& c : appletCredits()) {
        if (c.classFile == classFile)
            return c;
    }
    return AppletCredits{classFile, {}, {}, {}};
}

}  // namespace ql
