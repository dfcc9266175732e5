#include "TestSupport.h"
#include "effects/page/PasswordModel.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QRandomGenerator>
#include <QStandardPaths>
#include <QTemporaryDir>

using namespace ql;

namespace {

using Scheme = PasswordModel::Scheme;
using Kind = PasswordModel::Kind;

const QString Credit = "<!-- Script written by Ostrel Software - http://www.quillet-fx.com/company/ -->\r\n"
                       "<!-- Created by Quillet software - http://www.quillet-fx.com/ -->\r\n\r\n";
const QString NoFiles = "This special effect requires no extra files.\r\n\r\n"
                        "Simply follow the instructions in the Preview Wizard to insert this special effect into "
                        "your Web page";
const QString CgiFiles = "You will need the following files in order for this special effect to work correctly:\r\n\r\n"
                         "- the password.cgi file\r\n"
                         "- the HTML document (Web page) containing the special effect HTML code\r\n\r\n"
                         "These files MUST reside in the same folder!";

QString jsCode(const QString& check)
{
    return "<!-- FOLLOW THESE TWO STEPS TO INSTALL THIS SPECIAL EFFECT\r\n\r\n"
           "   1.  Paste the script code into the HEAD section of your HTML document\r\n"
           "   2.  Paste the body code into the BODY section of your HTML document\r\n\r\n\r\n"
           "<!-- STEP ONE: Paste the following code into the HEAD of your HTML document  -->\r\n\r\n"
           "<HEAD>\r\n"
           "<script language=\"JavaScript\">\r\n\r\n" +
           Credit +
           "<!--\r\n"
           "var username = \"\";\r\n"
           "function password() {\r\n"
           "     passtext = prompt('Please enter password'  ,\"\");\r\n"
           "     if (passtext == \"\" ) {history.back(1);}\r\n"
           "     if (passtext == null )  {history.back(1);}\r\n" +
           check +
           "}\r\n"
           "password();\r\n"
           "//-->\r\n"
           "</script>\r\n"
           "</HEAD>\r\n\r\n\r\n"
           "<!-- STEP TWO: Paste the following code into the BODY section in your HTML document -->\r\n\r\n"
           "<BODY>\r\n"
           "<H1>WARNING</H1><BR><BR>\r\n"
           "This is a password protected page.   Only Javascript enabled\r\n"
           "browsers can utilize this page.\r\n";
}

QString onePassword(const QString& password, const QString& target)
{
    return "     if (passtext ==\"" + password + "\")   {window.location = \"" + target + "\" ;}\r\n"
           " else {history.back(1);}\r\n";
}

// password.cgi as it must stand, byte for byte.
QByteArray script(const QString& perl, const QString& password, const QString& user, const QString& page,
                  const QString& folder)
{
    const QString text = "#! " + perl + "\n"
        "##############################################################################\n"
        "# Variable Definition\n"
        "\n"
        "$ext = \"html\";\n"
        "$passwd = \"" + password + "\";\n"
        "$username = \"" + user + "\";\n"
        "\n"
        "###########################################################################\n"
        "\n"
        "&parse_form;\n"
        "\n"
        "Print \"Content-type: text/html\\n\\n\";\n"
        "\n"
        "###########################################################################\n"
        "# Check Password\n"
        "###########################################################################\n"
        "\n"
        "   if (!($FORM{'password'} eq $passwd && $FORM{'username'} eq $username)) {\n"
        "      &error(bad_combo);\n"
        "   }\n"
        "   else {\n"
        "     print \"<html><head><meta http-equiv=\\\"Refresh\\\" Content=\\\"0\\;url=" + page + "\\\"></head>\\n\";\n"
        "       print \"<body></body></html>\";\n"
        "   }\n"
        "#######################\n"
        "# Parse Form Contents\n"
        "\n"
        "sub parse_form {\n"
        "\n"
        "   # Read input\n"
        "   read(STDIN, $buffer, $ENV{'CONTENT_LENGTH'});\n"
        "\n"
        "   # Split the name-value pairs\n"
        "   @pairs = split(/&/, $buffer);\n"
        "\n"
        "   foreach $pair (@pairs) {\n"
        "      ($name, $value) = split(/=/, $pair);\n"
        "\n"
        "      # Remove/convert plus signs and %-encoding\n"
        "      $value =~ tr/+/ /;\n"
        "      $value =~ s/%([a-fA-F0-9][a-fA-F0-9])/pack(\"C\", hex($1))/eg;\n"
        "\n"
        "      $FORM{$name} = $value;\n"
        "   }\n"
        "}\n"
        "\n"
        "######################\n"
        "# Error handling\n"
        "\n"
        "sub error {\n"
        "   $error = $_[0];\n"
        "   if ($error eq 'bad_combo') {\n"
        "      print \"<html><head><title>Bad Username - Password Combination</title></head>\\n\";\n"
        "      print \"<body><center><font face=\\\"Arial, Helvetica\\\" size=2><font size=5>Bad Username - Password Combination</font></center>\\n\";\n"
        "      print \"<HR>\\n\\n\";\n"
        "      print \"You entered and invalid username password pair.  Please try again.<p>\\n\\n\";\n"
        "      print \"<FORM METHOD=\\\"POST\\\" ACTION=\\\"" + folder + "password.cgi\\\">\\n\";\n"
        "      print \"<P ALIGN=CENTER>USERNAME: <INPUT TYPE=Text NAME=\\\"UserName\\\"><BR>\\n\";\n"
        "      print \"PASSWORD: <INPUT TYPE=Text NAME=\\\"Password\\\"><BR>\\n\";\n"
        "      print \"<INPUT TYPE=Submit NAME=\\\"submit\\\" VALUE=\\\"Login\\\"><BR>\\n\";\n"
        "      print \"</P></FORM>\\n\";\n"
        "      print \"</FONT>\\n\";\n"
        "      print \"</BODY></HTML>\\n\";\n"
        "   }\n"
        "   exit;\n"
        "}\n"
        "\r\n";
    return text.toUtf8();
}

QString loginForm(const QString& folder)
{
    return "<FORM METHOD=\"POST\" ACTION=\"" + folder + "password.cgi\">\r\n"
           "<table border=\"0\" cellpadding=\"0\" cellspacing=\"0\" bgcolor=\"#C0C0C0\">\r\n"
           "    <tr>\r\n"
           "        <td align=\"center\" colspan=\"7\" bgcolor=\"#0000A0\"><table border=\"0\" cellpadding=\"0\" bgcolor=\"#0000A0\">\r\n"
           "    <tr>\r\n"
           "        <td><font color=\"#FFFFFF\" size=\"2\" face=\"Arial,Helvetica\"><b>Please Login</b></font></td></tr>\r\n"
           "</table>\r\n"
           "    <tr>\r\n"
           "        <td width=\"20\">&nbsp;</td>\r\n"
           "        <td colspan=\"5\"><font size=\"2\" face=\"Arial,Helvetica\"><br>\r\n"
           "                Please enter your username and password</font></td>\r\n"
           "        <td width=\"20\">&nbsp;</td></tr>\r\n"
           "    <tr>\r\n"
           "        <td colspan=7>&nbsp;</td></tr>\r\n"
           "    <tr>\r\n"
           "        <td>&nbsp;</td>\r\n"
           "        <td><font size=\"1\" face=\"Arial,Helvetica\">USERNAME</font></td>\r\n"
           "        <td width=\"8\">&nbsp;</td>\r\n"
           "        <td><font face=\"Arial,Helvetica\"><input type=\"text\" size=\"14\" name=\"username\"></font></td>\r\n"
           "        <td colspan=3>&nbsp;</td></tr>\r\n"
           "    <tr>\r\n"
           "        <td colspan=7>&nbsp;</td></tr>\r\n"
           "    <tr>\r\n"
           "        <td>&nbsp;</td>\r\n"
           "        <td><font size=\"1\" face=\"Arial,Helvetica\">PASSWORD</font></td>\r\n"
           "        <td>&nbsp;</td>\r\n"
           "        <td><font face=\"Arial,Helvetica\"><input type=\"password\" size=\"14\" name=\"password\"></font></td>\r\n"
           "        <td width=\"8\">&nbsp;</td>\r\n"
           "        <td align=\"right\"><font size=\"1\" face=\"Arial,Helvetica\"><input type=\"submit\" name=\"Login\" value=\"&nbsp;&nbsp;Login&nbsp;&nbsp;\"></font></td>\r\n"
           "        <td>&nbsp;</td></tr>\r\n"
           "    <tr>\r\n"
           "        <td colspan=7>&nbsp;</td></tr>\r\n"
           "        </table>\r\n"
           "        </form>\r\n";
}

struct PerlRun {
    int exitCode = -1;
    QByteArray out;
    QByteArray err;
};

PerlRun runPerl(const QStringList& arguments, const QByteArray& input = {}, const QByteArray& contentLength = {})
{
    QProcess perl;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert("REQUEST_METHOD", "POST");
    env.insert("CONTENT_TYPE", "application/x-www-form-urlencoded");
    env.insert("CONTENT_LENGTH", contentLength.isEmpty() ? QByteArray::number(input.size()) : contentLength);
    perl.setProcessEnvironment(env);
    perl.start(QStandardPaths::findExecutable("perl"), arguments);
    perl.write(input);
    perl.closeWriteChannel();
    perl.waitForFinished(20000);
    return {perl.exitCode(), perl.readAllStandardOutput(), perl.readAllStandardError()};
}

}  // namespace

class PasswordTest : public QObject {
    Q_OBJECT

    TestDriver d;
    QTemporaryDir folder;

    void open()
    {
        QFile::remove(folder.filePath("password.cgi"));
        d.start({{"program_folder", folder.path()},
                 {"settings", QJsonArray{QJsonArray{"Apps", "Browser", "/usr/bin/browser"}}}});
        d.click("QLMain", "Command7");
        QVERIFY(d.shown("Password"));
        QVERIFY(d.modal("Password"));
    }
    bool onTop(const QString& page) { return d.on("Password", page, "on_top").toBool(); }
    bool visible(const QString& control) { return d.on("Password", control, "visible").toBool(); }
    void toJavaScript()
    {
        open();
        d.click("Password", "Option3(0)");
        d.click("Password", "Command5");
        QVERIFY(onTop("Picture2(0)"));
    }
    void toCgi()
    {
        open();
        d.click("Password", "Option3(1)");
        d.click("Password", "Command5");
        QVERIFY(onTop("Picture2(1)"));
    }
    QByteArray writtenScript()
    {
        QFile file(folder.filePath("password.cgi"));
        if (!file.open(QIODevice::ReadOnly))
            return {};
        return file.readAll();
    }

private slots:
    // The model.
    void javaScriptOnePassword()
    {
        PasswordModel::Fields f{.scheme = Scheme::JavaScript, .kind = Kind::OnePassword, .password = "open sesame",
                                .target = "secret.html"};
        QCOMPARE(PasswordModel::javaScriptCode(f), jsCode(onePassword("open sesame", "secret.html")));
        const HandOver h = PasswordModel::handOver(f);
        QCOMPARE(h.effectId, qint16(8));
        QVERIFY(h.classes.isEmpty());
        QVERIFY(h.fileLines.isEmpty());
        QVERIFY(h.message.isEmpty());
    }
    void javaScriptPagePerPasswordAddsTheSlashBack()
    {
        PasswordModel::Fields f{.scheme = Scheme::JavaScript, .kind = Kind::PagePerPassword, .password = "unused",
                                .target = "http://example.com/pages/"};
        f = PasswordModel::normalized(f);
        QCOMPARE(f.target, QString("http://example.com/pages"));
        QCOMPARE(PasswordModel::javaScriptCode(f),
                 jsCode("     else {window.location = \"http://example.com/pages/\" + passtext + \".html\" ;}\r\n"));
        // Only one slash goes.
        f.target = "a//";
        QCOMPARE(PasswordModel::normalized(f).target, QString("a/"));
    }
    void javaScriptWithNeitherOptionWritesTheOnePasswordLines()
    {
        PasswordModel::Fields f{.scheme = Scheme::JavaScript, .kind = Kind::Unchosen, .password = "", .target = ""};
        QVERIFY(!PasswordModel::validate(f));
        QCOMPARE(PasswordModel::javaScriptCode(f), jsCode(onePassword("", "")));
    }
    void cgiChecksInOrder()
    {
        PasswordModel::Fields f{.scheme = Scheme::Cgi};
        f.username = "  ";
        auto r = PasswordModel::validate(f);
        QCOMPARE(r->text, QString("Please enter a username."));
        QCOMPARE(r->style, 0);
        QCOMPARE(r->focus, QString("Text3"));
        f.username = "bob";
        r = PasswordModel::validate(f);
        QCOMPARE(r->text, QString("Please enter a password."));
        QCOMPARE(r->focus, QString("Text4"));
        f.loginPassword = "pw";
        f.loginPage = " ";
        r = PasswordModel::validate(f);
        QCOMPARE(r->text, QString("Please enter a Web page URL."));
        QCOMPARE(r->focus, QString("Text5"));
        f.loginPage = "x";
        QVERIFY(!PasswordModel::validate(f));
    }
    void cgiNormalising()
    {
        PasswordModel::Fields f{.scheme = Scheme::Cgi, .username = "u", .loginPassword = "p",
                                .loginPage = "  www.example.com/in.html ", .scriptFolder = " scripts ",
                                .perlPath = "   "};
        f = PasswordModel::normalized(f);
        QCOMPARE(f.loginPage, QString("http://www.example.com/in.html"));
        QCOMPARE(f.scriptFolder, QString("scripts/"));
        QCOMPARE(f.perlPath, QString("/usr/bin/perl"));
        f.loginPage = "ftp://files.example.com/";
        f.scriptFolder = "   ";
        f.perlPath = " /opt/perl ";
        f = PasswordModel::normalized(f);
        QCOMPARE(f.loginPage, QString("ftp://files.example.com/"));
        QCOMPARE(f.scriptFolder, QString());
        QCOMPARE(f.perlPath, QString("/opt/perl"));
        // The scheme test is case sensitive and looks at the first four characters as they stand.
        f.loginPage = "HTTP://X";
        QCOMPARE(PasswordModel::normalized(f).loginPage, QString("http://HTTP://X"));
        f.loginPage = "https://x ";
        QCOMPARE(PasswordModel::normalized(f).loginPage, QString("https://x "));
        f.scriptFolder = "cgi-bin/";
        QCOMPARE(PasswordModel::normalized(f).scriptFolder, QString("cgi-bin/"));
    }
    void scriptAndLoginFormByteForByte()
    {
        PasswordModel::Fields f{.scheme = Scheme::Cgi, .username = "bob", .loginPassword = "s3cret",
                                .loginPage = "http://example.com/members.html", .scriptFolder = "cgi-bin/",
                                .perlPath = "/usr/local/bin/perl"};
        QCOMPARE(PasswordModel::cgiScript(f),
                 script("/usr/local/bin/perl", "s3cret", "bob", "http://example.com/members.html", "cgi-bin/"));
        QVERIFY(PasswordModel::cgiScript(f).endsWith("}\n\r\n"));
        QCOMPARE(PasswordModel::cgiScript(f).count("\r"), 1);
        QCOMPARE(PasswordModel::loginForm(f), loginForm("cgi-bin/"));
        const HandOver h = PasswordModel::handOver(f);
        QCOMPARE(h.effectId, qint16(24));
        QCOMPARE(h.classes, QStringList{"password.cgi"});
        QCOMPARE(h.fileLines, QStringList{"- the password.cgi file"});
        QVERIFY(h.files.isEmpty());
    }

    // The scheme page.
    void schemePageOnOpening()
    {
        open();
        QCOMPARE(d.text("Password", "Password"), QString("Password Protection"));
        QVERIFY(onTop("Picture3"));
        QCOMPARE(d.text("Password", "Frame1"), QString("Select a password protection scheme"));
        QCOMPARE(d.text("Password", "Option3(0)"), QString("JavaScript Password (medium security)"));
        QCOMPARE(d.text("Password", "Option3(1)"), QString("CGI Password (high security)"));
        QVERIFY(!d.on("Password", "Option3(0)", "checked").toBool());
        QVERIFY(!d.on("Password", "Option3(1)", "checked").toBool());
        QCOMPARE(d.text("Password", "Label4"), QString());
        QVERIFY(!visible("Label4"));
        QCOMPARE(d.text("Password", "Command5"), QString("&Next >>"));
    }
    void hoverDescriptions()
    {
        open();
        d.on("Password", "Option3(0)", "hover");
        QVERIFY(visible("Label4"));
        QCOMPARE(d.text("Password", "Label4"),
                 QString("Provides less security than the CGI password, but is easier to implement in your Web "
                         "page.  It allows you to specify one password for a Web page or different passwords for "
                         "multiple Web pages."));
        d.on("Password", "Frame1", "hover");
        QVERIFY(!visible("Label4"));
        d.on("Password", "Option3(1)", "hover");
        QVERIFY(visible("Label4"));
        QCOMPARE(d.text("Password", "Label4"),
                 QString("Provides higher security than the JavaScript password, but is more difficult to implement "
                         "in your Web page.  Your Internet service provider must allow custom CGI scripts to be "
                         "installed on their Web server in order for this to work correctly."));
        d.on("Password", "Label4", "hover");
        QVERIFY(!visible("Label4"));
        d.on("Password", "Option3(0)", "hover");
        d.on("Password", "Picture3", "hover");
        QVERIFY(!visible("Label4"));
    }
    void nextWithoutASchemeAsks()
    {
        open();
        d.click("Password", "Command5");
        const QJsonArray m = d.messages();
        QCOMPARE(m.size(), 1);
        QCOMPARE(messageText(m[0]), QString("Please select a password protection scheme."));
        QCOMPARE(messageStyle(m[0]), 0);
        QVERIFY(onTop("Picture3"));
    }

    // The JavaScript page.
    void javaScriptPageCaptionsAndOptions()
    {
        toJavaScript();
        QCOMPARE(d.on("Password", "Password", "focus").toString(), QString("Option1"));
        QCOMPARE(d.text("Password", "Frame2"), QString("Password type"));
        QCOMPARE(d.text("Password", "Option1"), QString("Use one password to gain access to a specific Web page."));
        QCOMPARE(d.text("Password", "Option2"),
                 QString("Use different passwords that allow access to different Web pages.  For example, typing "
                         "the password \"bob\" accesses the bob.html Web page, and typing \"sam\" will access the "
                         "sam.html Web page."));
        QVERIFY(!visible("Text1"));
        QVERIFY(!visible("Label1"));
        QCOMPARE(d.text("Password", "Label2"), QString("Display this Web page when user enters correct password:"));
        QCOMPARE(d.text("Password", "Label3"),
                 QString("Example:  Type http://www.quillet-fx.com/company/secret.html if that's the Web page to be "
                         "password protected (or type secret.html if the HTML document resides in the same "
                         "directory as secret.html)."));
        QCOMPARE(d.text("Password", "Command2"), QString("&Done"));
        QCOMPARE(d.text("Password", "Command1"), QString("&Cancel"));
        QCOMPARE(d.on("Password", "Command4", "tooltip").toString(), QString("Click here for help"));

        d.click("Password", "Option1");
        QVERIFY(visible("Text1"));
        QCOMPARE(d.text("Password", "Label1"), QString("Password:"));
        QCOMPARE(d.text("Password", "Label2"), QString("URL of Web page to display when user types in correct password:"));
        QCOMPARE(d.text("Password", "Label3"),
                 QString("Example:  Type http://www.quillet-fx.com/company/secret.html if that's the Web page to be "
                         "accessed by the password (or just secret.html if the HTML document containing this "
                         "JavaScript code is in the same folder as secret.html)."));
        d.click("Password", "Option2");
        QVERIFY(!visible("Text1"));
        QVERIFY(!visible("Label1"));
        QCOMPARE(d.text("Password", "Label2"), QString("URL of Web page to display when user types in password:"));
        QCOMPARE(d.text("Password", "Label3"),
                 QString("Example:  If you want the user typing \"bob\" to access bob.html at the address "
                         "http://www.quillet-fx.com/company/bob.html then type http://www.quillet-fx.com/company/ "
                         "into the input box above."));
    }
    void javaScriptDoneHandsOverWithoutFiles()
    {
        toJavaScript();
        d.click("Password", "Option1");
        d.setText("Password", "Text1", "letmein");
        d.setText("Password", "Text2", "members/");
        d.click("Password", "Command2");
        QCOMPARE(d.text("Password", "Text2"), QString("members"));
        const QJsonObject s = d.session();
        QCOMPARE(s.value("GeneratedCode").toString(), jsCode(onePassword("letmein", "members")));
        QCOMPARE(s.value("EffectId").toInt(), 8);
        QCOMPARE(s.value("RequiredClasses").toArray(), (QJsonArray{"", "", ""}));
        const QJsonArray m = d.messages();
        QCOMPARE(m.size(), 1);
        QCOMPARE(messageText(m[0]), NoFiles);
        QCOMPARE(messageStyle(m[0]), 48);
        QVERIFY(writtenScript().isEmpty());
        QVERIFY(d.modal("Preview"));
        QCOMPARE(d.text("Preview", "Label3"), QString(" Required Java class files:  None"));
        // Back from the wizard: the page as it was left.
        d.click("Preview", "Command14");
        QVERIFY(d.shown("Password"));
        QVERIFY(onTop("Picture2(0)"));
        QCOMPARE(d.text("Password", "Text1"), QString("letmein"));
    }
    void javaScriptDoneWithNeitherOption()
    {
        toJavaScript();
        d.click("Password", "Command2");
        QCOMPARE(d.session().value("GeneratedCode").toString(), jsCode(onePassword("", "")));
    }

    // The CGI page.
    void cgiPageCaptionsAndDefaults()
    {
        toCgi();
        QCOMPARE(d.on("Password", "Password", "focus").toString(), QString("Text3"));
        QCOMPARE(d.text("Password", "Frame3"), QString("Required settings"));
        QCOMPARE(d.text("Password", "Label5"), QString("Specify username:"));
        QCOMPARE(d.text("Password", "Label6"), QString("Specify password:"));
        QCOMPARE(d.text("Password", "Label7"), QString("Display this Web page (URL) when user logs in:"));
        QCOMPARE(d.text("Password", "Frame4"), QString("Optional settings"));
        QCOMPARE(d.text("Password", "Label8"),
                 QString("These settings may need to be specified if your Internet service provider's Web server "
                         "requires them.  Click on the help button for more information."));
        QCOMPARE(d.text("Password", "Check1"), QString("Change settings"));
        QCOMPARE(d.text("Password", "Label9"), QString("Path to PERL compiler:"));
        QCOMPARE(d.text("Password", "Label10"), QString("Directory containing password.cgi file:"));
        QCOMPARE(d.text("Password", "Label11"), QString("(if different from default directory)"));
        QCOMPARE(d.text("Password", "Text7"), QString("/usr/bin/perl"));
        QCOMPARE(d.text("Password", "Text6"), QString());
        QVERIFY(!d.on("Password", "Text7", "enabled").toBool());
        QVERIFY(!d.on("Password", "Text6", "enabled").toBool());
        d.click("Password", "Check1");
        QVERIFY(d.on("Password", "Text7", "enabled").toBool());
        QVERIFY(d.on("Password", "Text6", "enabled").toBool());
        d.click("Password", "Check1");
        QVERIFY(!d.on("Password", "Text7", "enabled").toBool());
        QCOMPARE(d.text("Password", "Command3"), QString("Done"));
        QCOMPARE(d.text("Password", "Command6"), QString("&Cancel"));
        QCOMPARE(d.on("Password", "Command7", "tooltip").toString(), QString("Click here for help"));
    }
    void cgiRefusals()
    {
        toCgi();
        d.click("Password", "Command3");
        d.setText("Password", "Text3", "bob");
        d.click("Password", "Command3");
        QCOMPARE(d.on("Password", "Password", "focus").toString(), QString("Text4"));
        d.setText("Password", "Text4", "pw");
        d.click("Password", "Command3");
        QCOMPARE(d.on("Password", "Password", "focus").toString(), QString("Text5"));
        const QJsonArray m = d.messages();
        QCOMPARE(m.size(), 3);
        QCOMPARE(messageText(m[0]), QString("Please enter a username."));
        QCOMPARE(messageText(m[1]), QString("Please enter a password."));
        QCOMPARE(messageText(m[2]), QString("Please enter a Web page URL."));
        for (const QJsonValue& message : m)
            QCOMPARE(messageStyle(message), 0);
        QVERIFY(!d.loaded("Preview"));
        QVERIFY(writtenScript().isEmpty());
    }
    void cgiDoneWritesTheScriptAndHandsOver()
    {
        toCgi();
        d.setText("Password", "Text3", "bob");
        d.setText("Password", "Text4", "s3cret");
        d.setText("Password", "Text5", "www.example.com/members.html");
        d.click("Password", "Check1");
        d.setText("Password", "Text6", " scripts ");
        d.setText("Password", "Text7", "");
        d.click("Password", "Command3");
        QCOMPARE(d.text("Password", "Text5"), QString("http://www.example.com/members.html"));
        QCOMPARE(d.text("Password", "Text6"), QString("scripts/"));
        QCOMPARE(d.text("Password", "Text7"), QString("/usr/bin/perl"));
        QCOMPARE(writtenScript(),
                 script("/usr/bin/perl", "s3cret", "bob", "http://www.example.com/members.html", "scripts/"));
        const QJsonObject s = d.session();
        QCOMPARE(s.value("GeneratedCode").toString(), loginForm("scripts/"));
        QCOMPARE(s.value("EffectId").toInt(), 24);
        QCOMPARE(s.value("RequiredClasses").toArray(), (QJsonArray{"password.cgi", "", ""}));
        QCOMPARE(s.value("RequiredFiles").toArray(), QJsonArray::fromStringList(QStringList(51, QString())));
        QCOMPARE(s.value("RequiredPaths").toArray(), QJsonArray::fromStringList(QStringList(51, QString())));
        const QJsonArray m = d.messages();
        QCOMPARE(m.size(), 1);
        QCOMPARE(messageText(m[0]), CgiFiles);
        QCOMPARE(messageStyle(m[0]), 48);
        QVERIFY(d.modal("Preview"));
        QCOMPARE(d.text("Preview", "Label3"), QString(" Required files:  password.cgi"));
    }
    void cgiBlankFolderPostsToARelativeScript()
    {
        toCgi();
        d.setText("Password", "Text3", "bob");
        d.setText("Password", "Text4", "pw");
        d.setText("Password", "Text5", "ftp://files.example.com/");
        d.click("Password", "Check1");
        d.setText("Password", "Text6", "   ");
        d.click("Password", "Command3");
        QCOMPARE(d.text("Password", "Text5"), QString("ftp://files.example.com/"));
        QCOMPARE(d.text("Password", "Text6"), QString());
        QCOMPARE(d.session().value("GeneratedCode").toString(), loginForm(""));
        QVERIFY(writtenScript().contains("ACTION=\\\"password.cgi\\\">\\n\";\n"));
    }
    void aRefusedWriteIsNotReported()
    {
        toCgi();
        d.platform().scriptedFiles().injectFault(folder.filePath("password.cgi"), 70);
        d.setText("Password", "Text3", "bob");
        d.setText("Password", "Text4", "pw");
        d.setText("Password", "Text5", "http://x/");
        d.click("Password", "Command3");
        d.platform().scriptedFiles().clearFaults();
        QVERIFY(writtenScript().isEmpty());
        const QJsonArray m = d.messages();
        QCOMPARE(m.size(), 1);
        QCOMPARE(messageText(m[0]), CgiFiles);
        QCOMPARE(d.session().value("EffectId").toInt(), 24);
        QVERIFY(d.shown("Preview"));
    }
    void cgiPreviewPageAndStepThreeCopy()
    {
        toCgi();
        d.setText("Password", "Text3", "bob");
        d.setText("Password", "Text4", "pw");
        d.setText("Password", "Text5", "http://x/");
        d.click("Password", "Command3");
        d.click("Preview", "Command11");
        QFile page(folder.filePath("ql-prvw.htm"));
        QVERIFY(page.open(QIODevice::ReadOnly));
        const QString text = QString::fromUtf8(page.readAll());
        QVERIFY(text.startsWith("<HTML> <BODY> \r\n<FONT FACE=Arial SIZE=5>"));
        QVERIFY(text.contains("The CGI password script cannot be tested on your local computer."));
        QVERIFY(text.endsWith("\r\n\r\n" + loginForm("") + "\r\n</BODY></HTML>\r\n"));

        QTemporaryDir site;
        d.click("Preview", "Command15");
        d.click("Preview", "Command15");
        QVERIFY(d.on("Preview", "Picture1(2)", "on_top").toBool());
        d.on("Preview", "Dir1", "set_path", {{"path", site.path()}});
        d.click("Preview", "Command6");
        QFile copied(QDir(site.path()).filePath("password.cgi"));
        QVERIFY(copied.open(QIODevice::ReadOnly));
        QCOMPARE(copied.readAll(), script("/usr/bin/perl", "pw", "bob", "http://x/", ""));
        const QJsonArray m = d.messages();
        QCOMPARE(messageText(m.last()), "All files have been copied to the " + site.path() +
                                            "/ folder.  Now you can easily upload these files to the Internet.");
    }
    void staleReEditModeChoosesTheOnePasswordOption()
    {
        d.start({{"program_folder", folder.path()}});
        d.app().session().ReEditMode = 1;
        d.click("QLMain", "Command7");
        QCOMPARE(d.session().value("ReEditMode").toInt(), 0);
        d.click("Password", "Option3(0)");
        d.click("Password", "Command5");
        QVERIFY(d.on("Password", "Option1", "checked").toBool());
        QVERIFY(visible("Text1"));
    }
    void fillRoutineReadsTheScript()
    {
        d.start({{"program_folder", folder.path()}});
        d.click("QLMain", "mnuEditApplet");
        d.setText("EditAppletForm", "Text1", jsCode(onePassword("pw", "in.html")));
        d.app().session().ReEditMode = 1;
        d.click("QLMain", "Command7");
        // A value behind "passtext ==" chooses the page-per-password option.
        QVERIFY(d.on("Password", "Option2", "checked").toBool());
        QCOMPARE(d.text("Password", "Text1"), QString(" "));
        QCOMPARE(d.text("Password", "Text2"), QString("in.html"));
    }
    void damagedScriptInTheFillRoutineNeverHangsOrCrashes()
    {
        const QString good = jsCode(onePassword("pw", "in.html"));
        QRandomGenerator random(7511);
        d.start({{"program_folder", folder.path()}});
        for (int round = 0; round < 100; ++round) {
            QString code = good;
            const int damages = 1 + int(random.bounded(8));
            for (int i = 0; i < damages && !code.isEmpty(); ++i) {
                const int at = int(random.bounded(code.size()));
                switch (random.bounded(4)) {
                case 0:
                    code.remove(at, 1 + int(random.bounded(12)));
                    break;
                case 1:
                    code.insert(at, QChar(u"\"=<> \r\n\t'x"[random.bounded(9)]));
                    break;
                case 2:
                    code.insert(at, QString(int(random.bounded(200)), QChar('"')));
                    break;
                default:
                    code.truncate(at);
                    break;
                }
            }
            d.click("QLMain", "mnuEditApplet");
            d.setText("EditAppletForm", "Text1", code);
            d.app().session().ReEditMode = 1;
            QElapsedTimer clock;
            clock.start();
            d.click("QLMain", "Command7");
            QVERIFY2(clock.elapsed() < 1000, qPrintable(code));
            QVERIFY(d.shown("Password"));
            QCOMPARE(d.session().value("ReEditMode").toInt(), 0);
            d.click("Password", "Option3(0)");
            d.click("Password", "Command5");
            d.click("Password", "Command2");
            QVERIFY(d.shown("Preview"));
            d.click("Preview", "mnuReturn");
            d.app().forms().unload("Password");
            d.app().forms().unload("EditAppletForm");
        }
    }
    void cancelAndHelp()
    {
        toJavaScript();
        d.click("Password", "Command4");
        d.click("Password", "Command1");
        QVERIFY(!d.loaded("Password"));
        toCgi();
        d.click("Password", "Command7");
        QCOMPARE(d.help(), (QJsonArray{QJsonArray{"Password", QJsonValue::Null}}));
        d.click("Password", "Command6");
        QVERIFY(!d.loaded("Password"));
    }

    // The script under Perl.
    void perlRefusesTheCapitalPrintAndNothingElse()
    {
        if (QStandardPaths::findExecutable("perl").isEmpty())
            QSKIP("Perl is not installed (apt-get install perl): the script check is skipped");
        PasswordModel::Fields f{.scheme = Scheme::Cgi, .username = "bob", .loginPassword = "s3cret",
                                .loginPage = "http://example.com/members.html", .scriptFolder = "",
                                .perlPath = "/usr/bin/perl"};
        QTemporaryDir dir;
        const QString path = dir.filePath("password.cgi");
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(PasswordModel::cgiScript(f));
        file.close();
        // The script as written starts its output with "Print", which Perl
        // does not know: the check fails at that line and at no other.
        const PerlRun check = runPerl({"-c", path});
        QVERIFY(check.exitCode != 0);
        QVERIFY2(check.err.contains("near \"Print \"Content-type: text/html\\n\\n\"\""), check.err.constData());
        QVERIFY2(check.err.contains("line 13"), check.err.constData());
        for (const QByteArray& line : check.err.split('\n')) {
            if (line.contains(" line "))
                QVERIFY2(line.contains(" line 13"), line.constData());
        }
        QVERIFY(runPerl({path}, "username=bob&password=s3cret").out.isEmpty());
    }
    void theRestOfTheScriptRunsAsACgiProgram()
    {
        if (QStandardPaths::findExecutable("perl").isEmpty())
            QSKIP("Perl is not installed (apt-get install perl): the script check is skipped");
        PasswordModel::Fields f{.scheme = Scheme::Cgi, .username = "bob", .loginPassword = "open sesame",
                                .loginPage = "http://example.com/members.html", .scriptFolder = "cgi-bin/",
                                .perlPath = "/usr/bin/perl"};
        // The script with its one capital letter lowered, and no other change.
        QByteArray text = PasswordModel::cgiScript(f);
        QVERIFY(text.contains("\nPrint \"Content-type"));
        text.replace("\nPrint \"Content-type", "\nprint \"Content-type");
        QTemporaryDir dir;
        const QString path = dir.filePath("password.cgi");
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(text);
        file.close();
        const PerlRun check = runPerl({"-c", path});
        QCOMPARE(check.exitCode, 0);
        QVERIFY2(check.err.contains("syntax OK"), check.err.constData());

        // The login form's fields with the right pair: on to the page.
        PerlRun right = runPerl({path}, "username=bob&password=open+sesame&Login=%26nbsp%3BLogin");
        QCOMPARE(right.exitCode, 0);
        QCOMPARE(right.out,
                 QByteArray("Content-type: text/html\n\n<html><head><meta http-equiv=\"Refresh\" "
                            "Content=\"0;url=http://example.com/members.html\"></head>\n<body></body></html>"));
        right = runPerl({path}, "username=bob&password=open%20sesame");
        QVERIFY(right.out.contains("Content=\"0;url=http://example.com/members.html\""));

        const QByteArray badCombo =
            "Content-type: text/html\n\n"
            "<html><head><title>Bad Username - Password Combination</title></head>\n"
            "<body><center><font face=\"Arial, Helvetica\" size=2><font size=5>Bad Username - Password "
            "Combination</font></center>\n"
            "<HR>\n\n"
            "You entered and invalid username password pair.  Please try again.<p>\n\n"
            "<FORM METHOD=\"POST\" ACTION=\"cgi-bin/password.cgi\">\n"
            "<P ALIGN=CENTER>USERNAME: <INPUT TYPE=Text NAME=\"UserName\"><BR>\n"
            "PASSWORD: <INPUT TYPE=Text NAME=\"Password\"><BR>\n"
            "<INPUT TYPE=Submit NAME=\"submit\" VALUE=\"Login\"><BR>\n"
            "</P></FORM>\n"
            "</FONT>\n"
            "</BODY></HTML>\n";
        // A wrong password, an empty one, and the retry form's own field names.
        QCOMPARE(runPerl({path}, "username=bob&password=wrong&Login=Login").out, badCombo);
        QCOMPARE(runPerl({path}, "username=bob&password=&Login=Login").out, badCombo);
        QCOMPARE(runPerl({path}, "UserName=bob&Password=open+sesame&submit=Login").out, badCombo);
        QCOMPARE(runPerl({path}, "", "0").out, badCombo);
    }
};

QL_TEST_MAIN(PasswordTest)
#include "test_password.moc"
