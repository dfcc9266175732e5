#pragma once

#include <QString>
#include <QStringList>

// The names of the program's forms. The catalogue, the menus, the Preview
// wizard's tables, its Finish list and the re-edit routes name forms only
// through these.
namespace ql::FormName {

inline const QString Main = QStringLiteral("QLMain");
inline const QString EditApplet = QStringLiteral("EditAppletForm");
inline const QString Preview = QStringLiteral("Preview");
inline const QString MakeDir = QStringLiteral("MakeDir");
inline const QString Options = QStringLiteral("Options");
inline const QString About = QStringLiteral("About");

inline const QString Anim = QStringLiteral("Anim");
inline const QString ImgProps = QStringLiteral("ImgProps");
inline const QString AnimWizard = QStringLiteral("AnimWizard");
inline const QString BBWizard = QStringLiteral("BBWizard");
inline const QString Clock = QStringLiteral("Clock");
inline const QString DynaBut = QStringLiteral("DynaBut");
inline const QString Fade = QStringLiteral("Fade");
inline const QString ImageEffects = QStringLiteral("ImageEffects");
inline const QString Password = QStringLiteral("Password");
inline const QString StatusBar = QStringLiteral("StatusBar");
inline const QString Swirly = QStringLiteral("Swirly");
inline const QString Typer = QStringLiteral("Typer");
inline const QString SmoothScroll = QStringLiteral("SmoothScroll");
inline const QString FadeMsg = QStringLiteral("FadeMsg");
inline const QString NavTicker = QStringLiteral("NavTicker");
inline const QString Pulldown = QStringLiteral("Pulldown");
inline const QString PulldownURL = QStringLiteral("PulldownURL");
inline const QString Sound = QStringLiteral("Sound");
inline const QString ImageEffects2 = QStringLiteral("ImageEffects2");
inline const QString PopupAlert = QStringLiteral("PopupAlert");
inline const QString AnimButton = QStringLiteral("AnimButton");
inline const QString ImgRollover = QStringLiteral("ImgRollover");
inline const QString ImageFade = QStringLiteral("ImageFade");
inline const QString ImageFadeURL = QStringLiteral("ImageFadeURL");
inline const QString Credits = QStringLiteral("Credits");

}  // namespace ql::FormName
