#include "publish/PreviewPage.h"

#include "core/App.h"
#include "core/Emission.h"
#include "core/SharedRoutines.h"
#include "core/Text.h"

#include <QWidget>

namespace ql {

const QString PreviewBannerCgi = QStringLiteral(
    "<FONT FACE=Arial SIZE=5><B>Made with Quillet <FONT SIZE=3><SUP>TM</SUP></FONT></B><BR CLEAR=ALL><FONT SIZE=1>"
    "This text &quot;Made with Quillet&quot; only appears in this preview.  It will not be included when you insert "
    "the special effect into your Web page</FONT><HR SIZE=1><FONT SIZE=2>The CGI password script cannot be tested on "
    "your local computer.  You will need to upload the required files to your Web server in order to correctly test "
    "it.<BR><BR>Continue with Step 2 of Quillet's Preview wizard to finish this password protection effect.</FONT>"
    "</FONT><BR><BR>");
const QString PreviewBannerCredits = QStringLiteral(
    "<FONT FACE=Arial SIZE=5><B>Made with Quillet <FONT SIZE=3><SUP>TM</SUP></FONT></B><BR CLEAR=ALL><FONT SIZE=1>"
    "This text &quot;Made with Quillet&quot; only appears in this preview.  It will not be included when you insert "
    "the applet into your Web page</FONT><HR SIZE=1><BR><BR>This may or may not be an accurate preview of this "
    "special effect because this Preview Web page is not the same length as your Web page.");
const QString PreviewCreditsFiller = QStringLiteral(
    "<BR><BR><BR>We've added a few lines of text to demonstrate the scrolling credit effect<BR><BR><BR><BR><BR><BR>"
    "This text should be scrolling<BR><BR><BR><BR><BR><BR><BR><BR><BR><BR><BR><BR><BR><BR>The End.<HR><BR><BR><BR>"
    "<BR><BR><BR><BR><BR><BR><BR><BR><BR>.");
const QString PreviewBannerSections = QStringLiteral(
    "<FONT FACE=Arial SIZE=5><B>Made with Quillet <FONT SIZE=3><SUP>TM</SUP></FONT></B><BR CLEAR=ALL><FONT SIZE=1>"
    "This text &quot;Made with Quillet&quot; only appears in this preview.  It will not be included when you insert "
    "the applet into your Web page</FONT></FONT><HR SIZE=1><BR><BR>");
const QString PreviewBannerPlain = QStringLiteral(
    "<FONT FACE=Arial SIZE=5><B>Made with Quillet <FONT SIZE=3><SUP>TM</SUP></FONT></B><BR CLEAR=ALL><FONT SIZE=1>"
    "This text &quot;Made with Quillet&quot; only appears in this preview.  It will not be included when you insert "
    "the special effect into your Web page</FONT></FONT><HR SIZE=1><BR><BR>");

const QString ProgramFilter =
    QStringLiteral("All Files (*.*)|*.*|EXE Files (*.exe)|*.exe|BAT Files (*.bat)|*.bat");

bool programPathConfigured(const QString& path)
{
    return !path.isEmpty() && path != QLatin1String("c:\\");
}

QString previewPageText(const QString& code, int effectId)
{
    if (code.contains(QLatin1String("password.cgi")))
        return "<HTML> <BODY> " + CRLF + PreviewBannerCgi + CRLF + CRLF + code + CRLF + "</BODY></HTML>";
    if (code.left(6) == QLatin1String("<!DOCT"))
        return code;
    if (code.left(11) == QLatin1String("<!-- FOLLOW")) {
        if (effectId == 23)
            return "<HTML>" + CRLF + code + PreviewBannerCredits + PreviewCreditsFiller + CRLF + CRLF +
                   "</FONT></BODY></HTML>";
        return "<HTML>" + CRLF + code + PreviewBannerSections + CRLF + CRLF + "</BODY></HTML>";
    }
    return "<HTML> <BODY> " + CRLF + PreviewBannerPlain + CRLF + CRLF + code + CRLF + "</BODY></HTML>";
}

namespace {

// Asks for a program with the shared dialog; the chosen path, or nothing.
std::optional<QString> askForProgram(App& app, const QString& title)
{
    CommonDialog& dialog = app.commonDialog();
    dialog.Filter = ProgramFilter;
    dialog.FilterIndex = 2;
    dialog.CancelError = true;
    dialog.DialogTitle = title;
    dialog.FileName.clear();
    if (!dialog.ShowOpen())
        return std::nullopt;
    return dialog.FileName;
}

// The registry's browser command cut to its program: up to and including
// ".exe" (looked for from the fourth character), else its first three
// characters; quotes dropped.
QString browserFromCommand(const QString& command)
{
    const int at = inStr(4, command, QStringLiteral(".exe"));
    QString cut = command.left(at + 3);
    cut.remove(QLatin1Char('"'));
    return cut;
}

}  // namespace

void ShowPreviewPage(App& app, const QString& code, QWidget* window, QWidget* codeBox)
{
    Platform& platform = app.platform();
    platform.setBusy(true);
    if (code.isEmpty()) {
        app.msgBox(QStringLiteral("There is no code in the preview window.  Cannot preview applet."), MsgStyle::OkOnly);
        return;
    }
    const QString page = previewPageText(code, app.session().EffectId) + CRLF;
    // A write that fails is passed over: the browser shows what stands there.
    platform.files().writeFile(app.programFile(QStringLiteral("ql-prvw.htm")), page.toUtf8());

    const QString browser = platform.setting(QStringLiteral("Apps"), QStringLiteral("Browser"), QStringLiteral("c:\\"));
    if (!programPathConfigured(browser)) {
        ReadRegistryValue(app, QStringLiteral("http\\shell\\open\\command"), QString());
        const QString command = app.session().RegistryValue.toString();
        if (command.isEmpty()) {
            app.msgBox("Browser statement not found in Windows Registry." + CRLF +
                           "Select the file/path of the browser you wish to use.",
                       MsgStyle::OkOnly);
            const std::optional<QString> chosen = askForProgram(app, QStringLiteral("Select Browser..."));
            if (!chosen) {
                if (codeBox)
                    codeBox->setFocus();
                return;
            }
            platform.saveSetting(QStringLiteral("Apps"), QStringLiteral("Browser"), *chosen);
        } else {
            platform.saveSetting(QStringLiteral("Apps"), QStringLiteral("Browser"), browserFromCommand(command));
        }
    }
    ShellOpen(app, window, app.programFile(QStringLiteral("ql-prvw.htm")));
    platform.setBusy(false);
}

void OpenHtmlEditor(App& app, QWidget* window)
{
    Platform& platform = app.platform();
    QString editor = platform.setting(QStringLiteral("Apps"), QStringLiteral("HTMLEditor"), QStringLiteral("c:\\"));
    if (!programPathConfigured(editor)) {
        app.msgBox("HTML Editor statement not found in Windows Registry." + CRLF +
                       "Select the file/path of the HTML Editor you wish to use.",
                   MsgStyle::OkOnly);
        const std::optional<QString> chosen = askForProgram(app, QStringLiteral("Select HTML Editor..."));
        if (!chosen) {
            if (window)
                window->setFocus();
            return;
        }
        editor = *chosen;
        platform.saveSetting(QStringLiteral("Apps"), QStringLiteral("HTMLEditor"), editor);
    }
    // A failure to start is not reported.
    platform.startProgram(editor);
}

}  // namespace ql
