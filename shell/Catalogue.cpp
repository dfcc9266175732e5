#include "shell/Catalogue.h"

#include "core/FormNames.h"

namespace ql {

const QList<CataloguePage>& cataloguePages()
{
    static const QList<CataloguePage> pages = {
        {"Image Effects", "Animations, billboards, etc."},
        {"Text Effects", "Scrolling Text, Fading Text"},
        {"Other Special Effects", "Special Effects"},
    };
    return pages;
}

const QList<CatalogueEntry>& catalogue()
{
    static const QList<CatalogueEntry> entries = {
        {"Command22", 0, FormName::ImageFade, "Image Fade",
         "Create an effect that fades from one image to the next.  The images can be linked to Web pages."},
        {"Command20", 0, FormName::ImgRollover, "Image Rollover",
         "Create images that change another image on your Web page when the user's mouse moves over them and "
         "displays a new Web page when the user clicks on them."},
        {"Command18", 0, FormName::AnimButton, "Animated Button",
         "Create buttons that animate when the user's mouse moves over them or clicks on them and displays a new "
         "Web page when the user clicks on them."},
        {"Command1", 0, FormName::ImageEffects2, "More Image Effects",
         "Eight more image special effects that produce amazing effects for your Web pages."},
        {"Command17", 0, FormName::Anim, "Advanced Animator",
         "Create animations, scrolling billboard ads, and slideshows using this wizard.  This is for advanced users."},
        {"Command2", 0, FormName::DynaBut, "Dynamic Button",
         "Create buttons that change when the user's mouse moves over them and displays a new Web page when the "
         "user clicks on them."},
        {"Command11", 0, FormName::ImageEffects, "Image Effects",
         "Make your images go wild by applying these effects to them.  The Lake Reflection effect, Image Cube "
         "effect, and Ripple effect applets produce amazing effects for your Web pages."},
        {"Command10", 0, FormName::BBWizard, "Banner/Billboard Wizard",
         "This wizard helps you to make rotating banners and billboards, step by step."},
        {"Command9", 0, FormName::AnimWizard, "Animation Wizard", "This wizard helps you to make exciting animations step by step."},
        {"Command5", 1, FormName::StatusBar, "Status Bar Text Ticker",
         "Create text that scrolls in the status bar of the user's browser."},
        {"Command3", 1, FormName::Typer, "Typewriter Text",
         "Create text that is typed onto your Web page one letter at a time - like using a typewriter."},
        {"Command14", 1, FormName::NavTicker, "Navigator Ticker",
         "Create a scrolling ticker with text that you can link to Web pages (URLs) of your choice."},
        {"Command13", 1, FormName::SmoothScroll, "Smooth Scrolling Text Ticker", "Create text that scrolls accross the screen."},
        {"Command12", 1, FormName::FadeMsg, "Fading Message effect",
         "Create text messages that fade in and out to other text messages."},
        {"Command4", 1, FormName::Swirly, "Swirly Text effect", "Create text that swirls in different colors."},
        {"Command23", 2, FormName::Credits, "Scrolling Credits",
         "Create a Web page that scrolls like the credits at the end of a movie."},
        {"Command19", 2, FormName::PopupAlert, "Popup Alert Box",
         "Create a Popup Alert box that pops up and gives the user a message when they load your Web page."},
        {"Command8", 2, FormName::Clock, "Digital Clock", "Create a working clock on your Web page that tells the date and time."},
        {"Command16", 2, FormName::Sound, "Sound effect",
         "Use this applet to have your Web page play a sound file when it loads and a different sound file when the "
         "user exits the Web page."},
        {"Command15", 2, FormName::Pulldown, "Pulldown Menu",
         "Create a Pulldown menu that allows you to pick a selection and then jump to the Web page by clicking a "
         "button."},
        {"Command6", 2, FormName::Fade, "Background Color Fading effect",
         "Fades the Web page background from one color to another color.  This effect can be set to occur when the "
         "Web page loads and exits."},
        {"Command7", 2, FormName::Password, "Password Protection",
         "Protect your Web pages with a password so only people with a password can see it."},
    };
    return entries;
}

const QList<EffectSubmenu>& effectMenu()
{
    static const QList<EffectSubmenu> menu = {
        {"mnuImageEffectsMenu", "&Image Effects",
         {
             {"mnuAppletsAnimations", "&Advanced Animator...", FormName::Anim, false},
             {"mnuAnimWiz", "A&nimation Wizard...", FormName::AnimWizard, false},
             {"mnuBBWiz", "&Banner/Billboard Wizard...", FormName::BBWizard, false},
             {"mnuAnimButton", "Animated Bu&tton...", FormName::AnimButton, false},
             {"mnuAppletsDynaBut", "&Dynamic Button...", FormName::DynaBut, false},
             {"mnuImageEffects", "&Image Effects...", FormName::ImageEffects, false},
             {"mnuImageFade", "Image &Fade...", FormName::ImageFade, false},
             {"mnuImgRollover", "Image &Rollover...", FormName::ImgRollover, true},
             {"mnuMoreImageEffects", "&More Image Effects...", FormName::ImageEffects2, false},
         }},
        {"mnuTextEffectsMenu", "&Text Effects",
         {
             {"mnuFadeMsg", "Fading &Message...", FormName::FadeMsg, false},
             {"mnuNavTicker", "&Navigator Ticker...", FormName::NavTicker, false},
             {"mnuSmoothScroll", "Sm&ooth Scrolling Text Ticker...", FormName::SmoothScroll, false},
             {"mnuStatusBar", "Status &Bar Text Ticker...", FormName::StatusBar, false},
             {"mnuAppletSwirly", "&Swirly Text...", FormName::Swirly, false},
             {"mnuAppletsTyper", "&Typewriter Text...", FormName::Typer, false},
         }},
        {"mnuOtherEffectsMenu", "&Other Special Effects",
         {
             {"mnuClock", "Digital &Clock...", FormName::Clock, false},
             {"mnuFade", "Background Color &Fade-in/Fade-out...", FormName::Fade, false},
             {"mnuPassword", "&Password Protection...", FormName::Password, false},
             {"mnuPopupAlert", "Popup &Alert box...", FormName::PopupAlert, false},
             {"mnuPulldown", "Pu&lldown Menu...", FormName::Pulldown, false},
             {"mnuSoundFX", "So&und Effect...", FormName::Sound, false},
             {"mnuScrollingCredits", "Sc&rolling Credits...", FormName::Credits, false},
         }},
    };
    return menu;
}

}  // namespace ql
