#include "effects/page/PasswordModel.h"

#include "core/Emission.h"
#include "core/FormNames.h"

namespace ql {

namespace {

// The text without its leading and trailing blanks.
QString trimBlanks(const QString& text)
{
    qsizetype start = 0;
    qsizetype end = text.size();
    while (start < end && text[start] == QLatin1Char(' '))
        ++start;
    while (end > start && text[end - 1] == QLatin1Char(' '))
        --end;
    return text.mid(start, end - start);
}

bool blank(const QString& text)
{
    return trimBlanks(text).isEmpty();
}

}  // namespace

const EffectDescription& PasswordModel::description()
{
    static const EffectDescription d{
        .form = FormName::Password,
        .effectId = 8,
        .classes = {},
        .fileLines = {},
        .editKeys = {{"passtext ==", "Text1"}, {"window.location = ", "Text2"}},
        .helpTopic = std::nullopt,
    };
    return d;
}

std::optional<Refusal> PasswordModel::validate(const Fields& f)
{
    if (f.scheme != Scheme::Cgi)
        return std::nullopt;
    if (blank(f.username))
        return Refusal{"Please enter a username.", 0, "Text3"};
    if (blank(f.loginPassword))
        return Refusal{"Please enter a password.", 0, "Text4"};
    if (blank(f.loginPage))
        return Refusal{"Please enter a Web page URL.", 0, "Text5"};
    return std::nullopt;
}

PasswordModel::Fields PasswordModel::normalized(const Fields& given)
{
    Fields f = given;
    if (f.scheme == Scheme::JavaScript) {
        if (f.target.endsWith('/'))
            f.target.chop(1);
        return f;
    }
    const QString scheme = f.loginPage.left(4);
    if (scheme != QLatin1String("http") && scheme != QLatin1String("ftp:"))
        f.loginPage = "http://" + trimBlanks(f.loginPage);
    if (blank(f.scriptFolder)) {
        f.scriptFolder.clear();
    } else {
        f.scriptFolder = trimBlanks(f.scriptFolder);
        if (!f.scriptFolder.endsWith('/'))
            f.scriptFolder += '/';
    }
    f.perlPath = blank(f.perlPath) ? DefaultPerl : trimBlanks(f.perlPath);
    return f;
}

QString PasswordModel::javaScriptCode(const Fields& f)
{
    QString code = "<!-- FOLLOW THESE TWO STEPS TO INSTALL THIS SPECIAL EFFECT" + CRLF + CRLF +
                   "   1.  Paste the script code into the HEAD section of your HTML document" + CRLF +
                   "   2.  Paste the body code into the BODY section of your HTML document" + CRLF + CRLF + CRLF +
                   "<!-- STEP ONE: Paste the following code into the HEAD of your HTML document  -->" + CRLF + CRLF +
                   "<HEAD>" + CRLF + "<script language=" + QUOTE + "JavaScript" + QUOTE + ">" + CRLF + CRLF +
                   ScriptCreditLines() + "<!--" + CRLF + "var username = " + QUOTE + QUOTE + ";" + CRLF +
                   "function password() {" + CRLF + "     passtext = prompt('Please enter password'  ," + QUOTE +
                   QUOTE + ");" + CRLF + "     if (passtext == " + QUOTE + QUOTE + " ) {history.back(1);}" + CRLF +
                   "     if (passtext == null )  {history.back(1);}" + CRLF;
    if (f.kind == Kind::PagePerPassword) {
        // The typed password is itself the name of the page.
        code += "     else {window.location = " + QUOTE + f.target + "/" + QUOTE + " + passtext + " + QUOTE +
                ".html" + QUOTE + " ;}" + CRLF;
    } else {
        code += "     if (passtext ==" + QUOTE + f.password + QUOTE + ")   {window.location = " + QUOTE + f.target +
                QUOTE + " ;}" + CRLF + " else {history.back(1);}" + CRLF;
    }
    code += "}" + CRLF + "password();" + CRLF + "//-->" + CRLF + "</script>" + CRLF + "</HEAD>" + CRLF + CRLF +
            CRLF + "<!-- STEP TWO: Paste the following code into the BODY section in your HTML document -->" + CRLF +
            CRLF + "<BODY>" + CRLF + "<H1>WARNING</H1><BR><BR>" + CRLF +
            "This is a password protected page.   Only Javascript enabled" + CRLF +
            "browsers can utilize this page." + CRLF;
    return code;
}

QByteArray PasswordModel::cgiScript(const Fields& f)
{
    const QStringList lines = {
        "#! " + f.perlPath,
        "##############################################################################",
        "# Variable Definition",
        "",
        R"~($ext = "html";)~",
        R"~($passwd = ")~" + f.loginPassword + R"~(";)~",
        R"~($username = ")~" + f.username + R"~(";)~",
        "",
        "###########################################################################",
        "",
        "&parse_form;",
        "",
        R"~(Print "Content-type: text/html\n\n";)~",
        "",
        "###########################################################################",
        "# Check Password",
        "###########################################################################",
        "",
        R"~(   if (!($FORM{'password'} eq $passwd && $FORM{'username'} eq $username)) {)~",
        "      &error(bad_combo);",
        "   }",
        "   else {",
        R"~(     print "<html><head><meta http-equiv=\"Refresh\" Content=\"0\;url=)~" + f.loginPage +
            R"~(\"></head>\n";)~",
        R"~(       print "<body></body></html>";)~",
        "   }",
        "#######################",
        "# Parse Form Contents",
        "",
        "sub parse_form {",
        "",
        "   # Read input",
        "   read(STDIN, $buffer, $ENV{'CONTENT_LENGTH'});",
        "",
        "   # Split the name-value pairs",
        "   @pairs = split(/&/, $buffer);",
        "",
        "   foreach $pair (@pairs) {",
        "      ($name, $value) = split(/=/, $pair);",
        "",
        "      # Remove/convert plus signs and %-encoding",
        "      $value =~ tr/+/ /;",
        R"~(      $value =~ s/%([a-fA-F0-9][a-fA-F0-9])/pack("C", hex($1))/eg;)~",
        "",
        "      $FORM{$name} = $value;",
        "   }",
        "}",
        "",
        "######################",
        "# Error handling",
        "",
        "sub error {",
        "   $error = $_[0];",
        "   if ($error eq 'bad_combo') {",
        R"~(      print "<html><head><title>Bad Username - Password Combination</title></head>\n";)~",
        R"~(      print "<body><center><font face=\"Arial, Helvetica\" size=2><font size=5>Bad Username - Password Combination</font></center>\n";)~",
        R"~(      print "<HR>\n\n";)~",
        R"~(      print "You entered and invalid username password pair.  Please try again.<p>\n\n";)~",
        R"~(      print "<FORM METHOD=\"POST\" ACTION=\")~" + f.scriptFolder + R"~(password.cgi\">\n";)~",
        R"~(      print "<P ALIGN=CENTER>USERNAME: <INPUT TYPE=Text NAME=\"UserName\"><BR>\n";)~",
        R"~(      print "PASSWORD: <INPUT TYPE=Text NAME=\"Password\"><BR>\n";)~",
        R"~(      print "<INPUT TYPE=Submit NAME=\"submit\" VALUE=\"Login\"><BR>\n";)~",
        R"~(      print "</P></FORM>\n";)~",
        R"~(      print "</FONT>\n";)~",
        R"~(      print "</BODY></HTML>\n";)~",
        "   }",
        "   exit;",
        "}",
    };
    QString text;
    for (const QString& line : lines)
        text += line + '\n';
    // The line ending of the one print that writes the file.
    text += CRLF;
    return text.toUtf8();
}

QString PasswordModel::loginForm(const Fields& f)
{
    const QStringList lines = {
        R"~(<FORM METHOD="POST" ACTION=")~" + f.scriptFolder + R"~(password.cgi">)~",
        R"~(<table border="0" cellpadding="0" cellspacing="0" bgcolor="#C0C0C0">)~",
        "    <tr>",
        R"~(        <td align="center" colspan="7" bgcolor="#0000A0"><table border="0" cellpadding="0" bgcolor="#0000A0">)~",
        "    <tr>",
        R"~(        <td><font color="#FFFFFF" size="2" face="Arial,Helvetica"><b>Please Login</b></font></td></tr>)~",
        "</table>",
        "    <tr>",
        R"~(        <td width="20">&nbsp;</td>)~",
        R"~(        <td colspan="5"><font size="2" face="Arial,Helvetica"><br>)~",
        "                Please enter your username and password</font></td>",
        R"~(        <td width="20">&nbsp;</td></tr>)~",
        "    <tr>",
        "        <td colspan=7>&nbsp;</td></tr>",
        "    <tr>",
        "        <td>&nbsp;</td>",
        R"~(        <td><font size="1" face="Arial,Helvetica">USERNAME</font></td>)~",
        R"~(        <td width="8">&nbsp;</td>)~",
        R"~(        <td><font face="Arial,Helvetica"><input type="text" size="14" name="username"></font></td>)~",
        "        <td colspan=3>&nbsp;</td></tr>",
        "    <tr>",
        "        <td colspan=7>&nbsp;</td></tr>",
        "    <tr>",
        "        <td>&nbsp;</td>",
        R"~(        <td><font size="1" face="Arial,Helvetica">PASSWORD</font></td>)~",
        "        <td>&nbsp;</td>",
        R"~(        <td><font face="Arial,Helvetica"><input type="password" size="14" name="password"></font></td>)~",
        R"~(        <td width="8">&nbsp;</td>)~",
        R"~(        <td align="right"><font size="1" face="Arial,Helvetica"><input type="submit" name="Login" value="&nbsp;&nbsp;Login&nbsp;&nbsp;"></font></td>)~",
        "        <td>&nbsp;</td></tr>",
        "    <tr>",
        "        <td colspan=7>&nbsp;</td></tr>",
        "        </table>",
        "        </form>",
    };
    QString code;
    for (const QString& line : lines)
        code += line + CRLF;
    return code;
}

HandOver PasswordModel::handOver(const Fields& f)
{
    if (f.scheme == Scheme::Cgi) {
        return HandOver{.code = loginForm(f),
                        .effectId = 24,
                        .classes = {ScriptFile},
                        .fileLines = {"- the password.cgi file"},
                        .files = {},
                        .message = {}};
    }
    return HandOver::of(description(), javaScriptCode(f));
}

}  // namespace ql
