#include "core/Emission.h"

#include "core/Constants.h"

namespace ql {

QString ParamLine(const QString& name, const QString& value)
{
    return "<PARAM NAME=" + name + " VALUE=" + QUOTE + value + QUOTE + ">" + CRLF;
}

QString WizardValue()
{
    return "Created with Quillet.  Quillet Web site at: " + Addresses::ProductUrl;
}

QString AppletTag(const QString& classFile, const QString& height, const QString& width)
{
    return "<APPLET CODE=" + QUOTE + classFile + QUOTE + " HEIGHT=" + QUOTE + height + QUOTE + " WIDTH=" + QUOTE +
           width + QUOTE + ">" + CRLF;
}

QString ScriptCreditLines()
{
    return "<!-- Script written by Ostrel Software - " + Addresses::VendorUrl + " -->" + CRLF +
           "<!-- Created by Quillet software - " + Addresses::ProductUrl + " -->" + CRLF + CRLF;
}

QString NoFilesOnePieceMessage()
{
    return QStringLiteral("This effect does not require any extra files in order to work correctly.  Simply copy "
                          "and paste the code from the Preview Wizard to your HTML document to insert this special "
                          "effect.");
}

QString RequiredFilesMessage(const QStringList& kindLines)
{
    QString text = "You will need the following files in order for this special effect to work correctly:" + CRLF + CRLF;
    for (const QString& line : kindLines)
        text += line + CRLF;
    text += "- the HTML document (Web page) containing the special effect HTML code" + CRLF + CRLF +
            "These files MUST reside in the same folder!";
    return text;
}

QString NoFilesMessage()
{
    return "This special effect requires no extra files." + CRLF + CRLF +
           "Simply follow the instructions in the Preview Wizard to insert this special effect into your Web page";
}

}  // namespace ql
