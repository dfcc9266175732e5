#include "DamagedPaste.h"
#include "TestSupport.h"
#include "core/EffectSession.h"
#include "core/ExtractParam.h"
#include "core/ImagePreview.h"
#include "effects/image/DynaButForm.h"
#include "effects/image/DynaButModel.h"

#include <QApplication>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>

using namespace ql;

namespace {

const QString Head =
    "<PARAM NAME=COPYRIGHT VALUE=\"ButtonPLUS3 applet (c) Copyright 1998 Tessellate Software\">\r\n"
    "<PARAM NAME=DOCUMENTATION VALUE=\"Documentation found at: http://www.tessellate-sw.com/applets/\">\r\n"
    "<PARAM NAME=WIZARD VALUE=\"Created with Quillet.  Quillet Web site at: http://www.quillet-fx.com/\">\r\n";
const QString RequiredFiles =
    "You will need the following files in order for this special effect to work correctly:\r\n\r\n"
    "- images\r\n"
    "- sound files\r\n"
    "- the ButtonPLUS3.class file\r\n"
    "- the HTML document (Web page) containing the special effect HTML code\r\n\r\n"
    "These files MUST reside in the same folder!";
const QString NothingMessage = "You must enter a button image and/or button text.";
const QString SizeMessage = "Be sure to set the applet height and width in the applet properties.";
const QString ImageFilter = "All Files (*.*)|*.*|GIF and JPG Files (*.gif, *.jpg, *.jpeg)|*.gif;*.jpg;*.jpeg";
const QString SoundFilter = "All Files (*.*)|*.*|AU Files (*.au)|*.au";

// A GIF of one colour: LZW codes of 3 bits, the table cleared every two
// pixels so that the code size never grows.
QByteArray solidGif(int width, int height)
{
    QByteArray gif("GIF89a");
    auto word = [&gif](int v) {
        gif.append(char(v & 0xff));
        gif.append(char((v >> 8) & 0xff));
    };
    word(width);
    word(height);
    gif.append(char(0x80));  // global colour table of 2 entries
    gif.append(char(0));
    gif.append(char(0));
    gif.append(QByteArray::fromHex("cc3300ffffff"));
    gif.append(',');
    word(0);
    word(0);
    word(width);
    word(height);
    gif.append(char(0));
    gif.append(char(2));  // minimum code size
    QList<int> codes;
    for (int i = 0; i < width * height; ++i) {
        if (i % 2 == 0)
            codes << 4;  // clear
        codes << 0;
    }
    codes << 5;  // end
    QByteArray data;
    quint32 bits = 0;
    int count = 0;
    for (int code : codes) {
        bits |= quint32(code) << count;
        count += 3;
        while (count >= 8) {
            data.append(char(bits & 0xff));
            bits >>= 8;
            count -= 8;
        }
    }
    if (count > 0)
        data.append(char(bits & 0xff));
    for (qsizetype at = 0; at < data.size(); at += 255) {
        const QByteArray block = data.mid(at, 255);
        gif.append(char(block.size()));
        gif.append(block);
    }
    gif.append(char(0));
    gif.append(';');
    return gif;
}

QString valueOf(const QString& code, const QString& key)
{
    EffectSession s;
    ExtractParam(s, code, key);
    return s.ExtractedValue;
}

DynaButModel::Fields everyField()
{
    return {.baseImage = "base.gif",
            .baseText = "Go",
            .enterImage = "enter.gif",
            .enterText = "Go!",
            .enterSound = "in.au",
            .clickImage = "click.jpg",
            .clickText = "Gone",
            .clickSound = "out.au",
            .url = "next.html",
            .target = "_top",
            .width = "120",
            .height = "40",
            .backgroundColor = "Blue  -                0,0,255",
            .border = "3",
            .font = "Helvetica",
            .fontSize = "12",
            .textColor = "255,255,0",
            .textAlign = "center",
            .verticalAlign = "bottom"};
}

}  // namespace

class DynaButTest : public QObject {
    Q_OBJECT

    TestDriver d;
    QTemporaryDir pictures;

    QString write(const QString& name, const QByteArray& bytes)
    {
        const QString path = pictures.filePath(name);
        QFile file(path);
        if (file.open(QIODevice::WriteOnly))
            file.write(bytes);
        return path;
    }
    QString jpeg(const QString& name, int width, int height)
    {
        QImage image(width, height, QImage::Format_RGB32);
        image.fill(Qt::darkGreen);
        const QString path = pictures.filePath(name);
        image.save(path, "JPG");
        return path;
    }
    void openDynaBut()
    {
        d.start();
        d.click("QLMain", "Command2");
        QVERIFY(d.shown("DynaBut"));
    }
    bool onTop(int page) { return d.on("DynaBut", QStringLiteral("Picture1(%1)").arg(page), "on_top").toBool(); }
    int frontPage()
    {
        for (int i = 0; i < 4; ++i)
            if (onTop(i))
                return i;
        return -1;
    }
    QString focus() { return d.on("DynaBut", "DynaBut", "focus").toString(); }
    void next() { d.click("DynaBut", "Command18"); }
    void previous() { d.click("DynaBut", "Command2"); }
    DynaButForm* form() { return dynamic_cast<DynaButForm*>(d.app().forms().find("DynaBut")); }
    QImage preview(int page)
    {
        auto* box = d.app().forms().findWidget("DynaBut")->findChild<ImagePreview*>(QStringLiteral("Picture5(%1)").arg(page));
        return box ? box->image() : QImage();
    }
    QString slotOf(const char* array, int slot) { return d.session().value(array).toArray()[slot].toString(); }
    void browse(const char* button, const QString& path)
    {
        d.ok({{"op", "answer_file"}, {"paths", QJsonArray{path}}});
        d.click("DynaBut", button);
    }

private slots:
    void initTestCase() { QVERIFY(pictures.isValid()); }

    // The model alone.
    void emissionWithEveryField()
    {
        QCOMPARE(DynaButModel::emitCode(everyField()),
                 "<APPLET CODE=\"ButtonPLUS3.class\" HEIGHT=\"40\" WIDTH=\"120\">\r\n" + Head +
                     "<PARAM NAME=TEXT VALUE=\"Go|Go!|Gone\">\r\n"
                     "<PARAM NAME=IMAGE VALUE=\"base.gif|enter.gif|click.jpg\">\r\n"
                     "<PARAM NAME=URL VALUE=\"next.html\">\r\n"
                     "<PARAM NAME=TARGET VALUE=\"_top\">\r\n"
                     "<PARAM NAME=SOUND VALUE=\"in.au|out.au\">\r\n"
                     "<PARAM NAME=FONTNAME VALUE=\"Helvetica\">\r\n"
                     "<PARAM NAME=FONTSIZE VALUE=\"12\">\r\n"
                     "<PARAM NAME=BGCOLOR VALUE=\"0,0,255\">\r\n"
                     "<PARAM NAME=TEXTCOLOR VALUE=\"255,255,0\">\r\n"
                     "<PARAM NAME=TEXTALIGN VALUE=\"center\">\r\n"
                     "<PARAM NAME=VTEXTALIGN VALUE=\"bottom\">\r\n"
                     "<PARAM NAME=HIGHLIGHT VALUE=\"3\">\r\n"
                     "<A HREF=\"next.html\"  TARGET=\"_top\"><IMG SRC=\"base.gif\" border=0></A>\r\n"
                     "</APPLET>\r\n");
    }
    void textOnlyWithEmptySizes()
    {
        const DynaButModel::Fields f{.baseText = "Home"};
        QCOMPARE(DynaButModel::emitCode(f),
                 "<APPLET CODE=\"ButtonPLUS3.class\" HEIGHT=\"100\" WIDTH=\"100\">\r\n" + Head +
                     "<PARAM NAME=TEXT VALUE=\"Home||\">\r\n"
                     "<PARAM NAME=URL VALUE=\"null\">\r\n"
                     "<A HREF=\"\" ><IMG SRC=\"\" border=0></A>\r\n"
                     "</APPLET>\r\n");
        // Two bars alone when there is no text at all.
        QVERIFY(DynaButModel::emitCode({.baseImage = "a.gif"}).contains("<PARAM NAME=TEXT VALUE=\"||\">\r\n"));
    }
    void clickSoundAloneWritesNoSoundLine()
    {
        DynaButModel::Fields f = everyField();
        f.enterSound.clear();
        QVERIFY(!DynaButModel::emitCode(f).contains("SOUND"));
        f.enterSound = "in.au";
        f.clickSound.clear();
        QVERIFY(DynaButModel::emitCode(f).contains("<PARAM NAME=SOUND VALUE=\"in.au|\">\r\n"));
    }
    void imagesAreNamedByTheBaseImage()
    {
        DynaButModel::Fields f = everyField();
        f.baseImage.clear();
        const QString code = DynaButModel::emitCode(f);
        QVERIFY(!code.contains("IMAGE VALUE"));
        QVERIFY(code.contains("<IMG SRC=\"\" border=0>"));
    }
    void coloursTakeTheirLastElevenCharacters()
    {
        DynaButModel::Fields f{.baseText = "x", .backgroundColor = "Magenta  -             255,0,255",
                               .textColor = "12,34,56"};
        const QString code = DynaButModel::emitCode(f);
        QVERIFY(code.contains("<PARAM NAME=BGCOLOR VALUE=\"255,0,255\">\r\n<PARAM NAME=TEXTCOLOR VALUE=\"12,34,56\">\r\n"));
    }
    void sizeAttributes()
    {
        using A = DynaButModel::SizeAttributes;
        auto of = [](const QString& width, const QString& height, const A& earlier = {}) {
            return DynaButModel::sizeAttributes({.width = width, .height = height}, earlier);
        };
        A a = of("", "");
        QCOMPARE(a.height, QString(" HEIGHT=\"100\""));
        QCOMPARE(a.width, QString(" WIDTH=\"100\""));
        a = of("80px", " 12.9");
        QCOMPARE(a.height, QString(" HEIGHT=\"12\""));
        QCOMPARE(a.width, QString(" WIDTH=\"80\""));
        // A size that is no number keeps the attribute of the Done before.
        a = of("wide", "tall");
        QCOMPARE(a.height, QString());
        QCOMPARE(a.width, QString());
        a = of("wide", "tall", {.height = " HEIGHT=\"7\"", .width = " WIDTH=\"9\""});
        QCOMPARE(a.height, QString(" HEIGHT=\"7\""));
        QCOMPARE(a.width, QString(" WIDTH=\"9\""));
        QVERIFY(DynaButModel::emitCode({.baseText = "x"}, a).startsWith(
            "<APPLET CODE=\"ButtonPLUS3.class\" HEIGHT=\"7\" WIDTH=\"9\">\r\n"));
    }
    void validation()
    {
        const auto r = DynaButModel::validate({});
        QVERIFY(r);
        QCOMPARE(r->text, NothingMessage);
        QCOMPARE(r->style, 48);
        QVERIFY(!DynaButModel::validate({.baseImage = "a.gif"}));
        QVERIFY(!DynaButModel::validate({.baseText = " "}));
        // Images and texts of the other states do not count.
        QVERIFY(DynaButModel::validate({.enterImage = "a.gif", .enterText = "x", .clickText = "y"}));
    }
    void cuttingAtTheBars()
    {
        using Parts = std::array<QString, 6>;
        QCOMPARE(DynaButModel::pipeParse("a.au|b.au"), (Parts{"a.au", "b.a", "", "", "", ""}));
        QCOMPARE(DynaButModel::pipeParse("one"), (Parts{"one", "", "", "", "", ""}));
        QCOMPARE(DynaButModel::pipeParse("a.gif|b.gif|c.gif"), (Parts{"a.gif", "b.gif", "c.gi", "", "", ""}));
        QCOMPARE(DynaButModel::pipeParse("a|b|c"), (Parts{"a", "b", "", "", "", ""}));
        QCOMPARE(DynaButModel::pipeParse("a||"), (Parts{"a", "", "", "", "", ""}));
        QCOMPARE(DynaButModel::pipeParse("||"), (Parts{"", "", "", "", "", ""}));
        QCOMPARE(DynaButModel::pipeParse("a|"), (Parts{"a", "", "", "", "", ""}));
        QCOMPARE(DynaButModel::pipeParse("|b"), (Parts{"", "", "", "", "", ""}));
        QCOMPARE(DynaButModel::pipeParse("a|b|c|d"), (Parts{"a", "b", "c|", "", "", ""}));
        QCOMPARE(DynaButModel::pipeParse(""), (Parts{"", "", "", "", "", ""}));
    }
    void reEditOfItsOwnCode()
    {
        const QString code = DynaButModel::emitCode(everyField());
        DynaButModel::Fields back;
        DynaButModel::reEdit(back, "\"ButtonP", [&code](const QString& key) { return valueOf(code, key); });
        QCOMPARE(back.baseImage, QString("base.gif"));
        QCOMPARE(back.enterImage, QString("enter.gif"));
        QCOMPARE(back.clickImage, QString("click.jp"));
        QCOMPARE(back.enterSound, QString("in.au"));
        QCOMPARE(back.clickSound, QString("out.a"));
        QCOMPARE(back.baseText, QString("Go"));
        QCOMPARE(back.enterText, QString("Go!"));
        QCOMPARE(back.clickText, QString("Gon"));
        QCOMPARE(back.url, QString("next.html"));
        QCOMPARE(back.target, QString());
        QCOMPARE(back.width, QString("120"));
        QCOMPARE(back.height, QString("40"));
        QCOMPARE(back.backgroundColor, QString("0,0,255"));
        QCOMPARE(back.textColor, QString("255,255,0"));
        QCOMPARE(back.font, QString("Helvetica"));
        QCOMPARE(back.fontSize, QString("12"));
        QCOMPARE(back.textAlign, QString("center"));
        QCOMPARE(back.verticalAlign, QString("bottom"));
        QCOMPARE(back.border, QString("3"));
    }
    void reEditOfTheOlderButtonApplet()
    {
        const QString code = "<APPLET CODE=Button1.class WIDTH=\"90\" HEIGHT=\"30\">\r\n"
                             "<PARAM NAME=BASE.IMAGE VALUE=\"b.gif\">\r\n"
                             "<PARAM NAME=ENTER.IMAGE VALUE=\"e.gif\">\r\n"
                             "<PARAM NAME=CLICK.IMAGE VALUE=\"c.gif\">\r\n"
                             "<PARAM NAME=BASE.TEXT VALUE=\"bt\">\r\n"
                             "<PARAM NAME=ENTER.TEXT VALUE=\"et\">\r\n"
                             "<PARAM NAME=CLICK.TEXT VALUE=\"ct\">\r\n"
                             "<PARAM NAME=URL VALUE=\"u.html\">\r\n"
                             "<PARAM NAME=TARGET VALUE=\"_self\">\r\n"
                             "<PARAM NAME=ENTER.SOUND VALUE=\"e.au\">\r\n"
                             "<PARAM NAME=CLICK.SOUND VALUE=\"c.au\">\r\n"
                             "<PARAM NAME=BASE.FONTNAME VALUE=\"Courier\">\r\n"
                             "<PARAM NAME=BASE.FONTSIZE VALUE=\"10\">\r\n"
                             "<PARAM NAME=BASE.BGCOLOR VALUE=\"1,2,3\">\r\n"
                             "<PARAM NAME=BASE.FGCOLOR VALUE=\"4,5,6\">\r\n"
                             "<PARAM NAME=TEXTALIGN VALUE=\"left\">\r\n"
                             "<PARAM NAME=VTEXTALIGN VALUE=\"top\">\r\n"
                             "<PARAM NAME=HIGHLIGHT VALUE=\"2\">\r\n"
                             "</APPLET>\r\n";
        QCOMPARE(classPrefix(code, 8), QString("Button1."));
        DynaButModel::Fields f;
        DynaButModel::reEdit(f, "Button1.", [&code](const QString& key) { return valueOf(code, key); });
        const DynaButModel::Fields expected{.baseImage = "b.gif", .baseText = "bt", .enterImage = "e.gif",
                                            .enterText = "et", .enterSound = "e.au", .clickImage = "c.gif",
                                            .clickText = "ct", .clickSound = "c.au", .url = "u.html",
                                            .target = "_self", .width = "90", .height = "30",
                                            .backgroundColor = "1,2,3", .border = "2", .font = "Courier",
                                            .fontSize = "10", .textColor = "4,5,6", .textAlign = "left",
                                            .verticalAlign = "top"};
        QCOMPARE(DynaButModel::emitCode(f), DynaButModel::emitCode(expected));
        // A quoted older class name is read as ButtonPLUS3 code: its keys
        // find the first state's value inside the older names, whole.
        DynaButModel::Fields quoted;
        DynaButModel::reEdit(quoted, "\"Button1", [&code](const QString& key) { return valueOf(code, key); });
        QCOMPARE(quoted.baseImage, QString("b.gif"));
        QCOMPARE(quoted.enterImage, QString());
        QCOMPARE(quoted.baseText, QString("bt"));
        QCOMPARE(quoted.enterSound, QString("e.au"));
        QCOMPARE(quoted.clickSound, QString());
        QCOMPARE(quoted.font, QString("Courier"));
        QCOMPARE(quoted.textColor, QString());
        QCOMPARE(quoted.target, QString());
        QCOMPARE(quoted.url, QString("u.html"));
    }

    // The size reading of the kit.
    void readImageSizeOfPictures()
    {
        d.start();
        FileSystem& files = d.app().platform().files();
        QCOMPARE(readImageSize(files, write("size.gif", solidGif(33, 7))), std::optional<QSize>(QSize(33, 7)));
        QCOMPARE(readImageSize(files, jpeg("size.jpg", 17, 45)), std::optional<QSize>(QSize(17, 45)));
        QVERIFY(!readImageSize(files, write("size.txt", "GIF89a but nothing more")));
        QVERIFY(!readImageSize(files, write("empty.gif", QByteArray())));
        QVERIFY(!readImageSize(files, pictures.filePath("missing.gif")));
        QVERIFY(!readImageSize(files, pictures.path()));
        // A GIF cut short does not decode either.
        QVERIFY(!readImageSize(files, write("cut.gif", solidGif(40, 40).left(20))));
        const QString refused = write("refused.jpg", QByteArray());
        jpeg("refused.jpg", 5, 5);
        d.platform().scriptedFiles().injectFault(refused, 70, ScriptedFileSystem::Read);
        QVERIFY(!readImageSize(files, refused));
    }

    // The form.
    void formOpensOnTheFirstPage()
    {
        openDynaBut();
        QVERIFY(d.modal("DynaBut"));
        QCOMPARE(d.text("DynaBut", "DynaBut"), QString("Dynamic Button"));
        QCOMPARE(d.text("DynaBut", "Label1"),
                 QString("The Dynamic Button applet allows you to create buttons for your Web page which change and "
                         "make sounds when the user moves the mouse pointer over them or clicks on them."));
        QCOMPARE(frontPage(), 0);
        QVERIFY(!d.on("DynaBut", "Command2", "enabled").toBool());
        QCOMPARE(d.text("DynaBut", "Command18"), QString("&Next >>"));
        QCOMPARE(d.text("DynaBut", "Command2"), QString("<< &Previous"));
        QCOMPARE(d.text("DynaBut", "Command1"), QString("&Cancel"));
        QCOMPARE(d.on("DynaBut", "Command3", "tooltip").toString(), QString("Click here for help"));
        const QList<QPair<const char*, const char*>> captions = {
            {"Frame1", "Button properties when mouse pointer is not interacting with the button:"},
            {"Frame2", "Button properties when mouse pointer is moved over the button:"},
            {"Frame3", "Button properties when mouse pointer is clicked on the button:"},
            {"Frame8(0)", "Preview image"},
            {"Frame8(1)", "Preview image"},
            {"Frame8(2)", "Preview image"},
            {"Label2", "Button Image:"},
            {"Label4", "Text you wish to be on the button:"},
            {"Label5", "(Optional)"},
            {"Label6", "Button Image:"},
            {"Label7", "Text you wish to be on the button:"},
            {"Label8", "(Optional)"},
            {"Label9", "Play this sound:"},
            {"Label11", "(Optional)"},
            {"Label12", "Button Image:"},
            {"Label13", "Text you wish to be on the button:"},
            {"Label14", "(Optional)"},
            {"Label15", "Play this sound:"},
            {"Label16", "(Optional)"},
            {"Label17", "Go to this URL when button is clicked:"},
            {"Label18", "Name of Frame to target:"},
            {"Frame4", "Button Size"},
            {"Label19", "Width (pixels):"},
            {"Label20", "Height (pixels):"},
            {"Frame5", "Button Properties"},
            {"Label21", "Background Color:"},
            {"Label10", "Select"},
            {"Label22", "3D border size:"},
            {"Frame6", "Text Properties"},
            {"Label23", "If you also want text to appear on your button, enter the following properties:"},
            {"Label24", "Font:"},
            {"Label25", "Font Size:"},
            {"Label26", "Text Color:"},
            {"Label3", "Select"},
            {"Label27", "Horizontal Alignment:"},
            {"Label28", "Vertical Alignment:"},
        };
        for (const auto& [control, caption] : captions)
            QCOMPARE(d.text("DynaBut", control), QString(caption));
        for (const char* button : {"Command9", "Command6", "Command7", "Command8", "Command4"})
            QCOMPARE(d.on("DynaBut", button, "tooltip").toString(), QString("Browse for image..."));
        for (const char* field : {"Text2", "Text6", "Text28", "Text23", "Text29"})
            QVERIFY(d.on("DynaBut", field, "read_only").toBool());
        for (const char* field : {"Text5", "Text22", "Text24", "Text27", "Text26", "Text25"}) {
            QVERIFY(!d.on("DynaBut", field, "read_only").toBool());
            QCOMPARE(d.text("DynaBut", field), QString());
        }
        QCOMPARE(d.on("DynaBut", "Combo3", "tooltip").toString(), QString("Sets the horizontal alignment of the text"));
        QCOMPARE(d.on("DynaBut", "Combo4", "tooltip").toString(), QString("Sets the vertical alignment of the text"));
        const QJsonArray colours{"Black  -               0,0,0", "Blue  -                0,0,255",
                                 "Red  -                 255,0,0", "Green  -               0,255,0",
                                 "Cyan  -                0,255,255", "Magenta  -             255,0,255",
                                 "Yellow  -              255,255,0", "White  -               255,255,255"};
        QCOMPARE(d.on("DynaBut", "Combo6", "items").toArray(), colours);
        QCOMPARE(d.on("DynaBut", "Combo2", "items").toArray(), colours);
        QCOMPARE(d.on("DynaBut", "Combo8", "items").toArray(),
                 (QJsonArray{"0", "1", "2", "3", "4", "5", "6", "7", "8", "9", "10"}));
        QCOMPARE(d.on("DynaBut", "Combo5", "items").toArray(),
                 (QJsonArray{"Arial", "Courier", "Dialog", "Helvetica", "TimesRoman"}));
        QCOMPARE(d.on("DynaBut", "Combo7", "items").toArray(),
                 (QJsonArray{"4", "6", "8", "9", "10", "11", "12", "14", "16", "18", "20", "22", "24", "28", "30",
                             "36", "48", "72"}));
        QCOMPARE(d.on("DynaBut", "Combo3", "items").toArray(), (QJsonArray{"left", "center", "right"}));
        QCOMPARE(d.on("DynaBut", "Combo4", "items").toArray(), (QJsonArray{"top", "center", "bottom"}));
        QCOMPARE(d.on("DynaBut", "Combo1", "items").toArray(), (QJsonArray{"_blank", "_parent", "_self", "_top"}));
        for (const char* open : {"Combo1", "Combo6", "Combo8", "Combo7", "Combo2"})
            QVERIFY(d.on("DynaBut", open, "editable").toBool());
        for (const char* closed : {"Combo5", "Combo3", "Combo4"})
            QVERIFY(!d.on("DynaBut", closed, "editable").toBool());
        for (const char* combo : {"Combo1", "Combo6", "Combo8", "Combo5", "Combo7", "Combo2", "Combo3", "Combo4"})
            QCOMPARE(d.text("DynaBut", combo), QString());
    }
    void nextAndPreviousMoveTheFocus()
    {
        openDynaBut();
        next();
        QCOMPARE(frontPage(), 1);
        QVERIFY(d.on("DynaBut", "Command2", "enabled").toBool());
        QCOMPARE(focus(), QString("Text6"));
        next();
        QCOMPARE(frontPage(), 2);
        QCOMPARE(focus(), QString("Text23"));
        next();
        QCOMPARE(frontPage(), 3);
        QCOMPARE(d.text("DynaBut", "Command18"), QString("&Done"));
        QCOMPARE(focus(), QString("Text26"));
        QCOMPARE(form()->buttonStep(), 4);
        previous();
        QCOMPARE(frontPage(), 2);
        QCOMPARE(d.text("DynaBut", "Command18"), QString("&Next >>"));
        QCOMPARE(focus(), QString("Text23"));
        previous();
        QCOMPARE(frontPage(), 1);
        QCOMPARE(focus(), QString("Text6"));
        previous();
        QCOMPARE(frontPage(), 0);
        QVERIFY(!d.on("DynaBut", "Command2", "enabled").toBool());
        QCOMPARE(focus(), QString("Text2"));
        QCOMPARE(form()->buttonStep(), 1);
        QVERIFY(d.messages().isEmpty());
    }
    void doneWithNothingAsksAgainAfterOneMorePress()
    {
        openDynaBut();
        for (int i = 0; i < 4; ++i)
            next();
        QJsonArray m = d.messages();
        QCOMPARE(m.size(), 1);
        QCOMPARE(messageText(m[0]), NothingMessage);
        QCOMPARE(messageStyle(m[0]), 48);
        QCOMPARE(frontPage(), 3);
        QCOMPARE(form()->buttonStep(), 3);
        QVERIFY(!d.loaded("Preview"));
        // One press only shows the last page again.
        next();
        QCOMPARE(d.messages().size(), 1);
        QCOMPARE(frontPage(), 3);
        QCOMPARE(form()->buttonStep(), 4);
        // The next one tests again.
        next();
        QCOMPARE(d.messages().size(), 2);
        QCOMPARE(form()->buttonStep(), 3);
        // With a text it goes through.
        d.setText("DynaBut", "Text5", "Home");
        next();
        next();
        QVERIFY(d.shown("Preview"));
    }
    void imageBrowseShowsThePictureAndGrowsTheSize()
    {
        openDynaBut();
        const QString gif = write("base.gif", solidGif(40, 30));
        browse("Command9", gif);
        QCOMPARE(d.text("DynaBut", "Text2"), QString("base.gif"));
        QCOMPARE(preview(0).size(), QSize(40, 30));
        QCOMPARE(d.text("DynaBut", "Text26"), QString("40"));
        QCOMPARE(d.text("DynaBut", "Text25"), QString("30"));
        QCOMPARE(slotOf("RequiredPaths", 0), gif);
        QCOMPARE(slotOf("RequiredFiles", 0), QString());
        const QJsonArray dialogs = d.ok({{"op", "dialogs"}}).toArray();
        QCOMPARE(dialogs.size(), 1);
        QCOMPARE(dialogs[0].toObject().value("title").toString(), QString("Browse..."));
        QCOMPARE(dialogs[0].toObject().value("filter").toString(), ImageFilter);
        QCOMPARE(dialogs[0].toObject().value("filter_index").toInt(), 2);

        // A wider JPEG widens the button; the height stays.
        next();
        const QString wide = jpeg("enter.jpg", 64, 20);
        browse("Command6", wide);
        QCOMPARE(preview(1).size(), QSize(64, 20));
        QCOMPARE(d.text("DynaBut", "Text26"), QString("64"));
        QCOMPARE(d.text("DynaBut", "Text25"), QString("30"));
        QCOMPARE(slotOf("RequiredPaths", 1), wide);
        // A smaller one shrinks nothing.
        next();
        browse("Command8", write("click.gif", solidGif(8, 8)));
        QCOMPARE(d.text("DynaBut", "Text26"), QString("64"));
        QCOMPARE(d.text("DynaBut", "Text25"), QString("30"));
        // A size typed as text counts as 0 and is replaced.
        d.setText("DynaBut", "Text25", "tall");
        browse("Command8", write("click2.gif", solidGif(8, 9)));
        QCOMPARE(d.text("DynaBut", "Text25"), QString("9"));
        QCOMPARE(d.text("DynaBut", "Text23"), QString("click2.gif"));
    }
    void aFileThatIsNoPictureKeepsItsNameButNoPath()
    {
        openDynaBut();
        browse("Command9", write("good.gif", solidGif(20, 10)));
        const QString bad = write("notes.gif", "this is no picture");
        browse("Command9", bad);
        QCOMPARE(d.text("DynaBut", "Text2"), QString("notes.gif"));
        QVERIFY(preview(0).isNull());
        QCOMPARE(d.text("DynaBut", "Text26"), QString("20"));
        QCOMPARE(slotOf("RequiredPaths", 0), pictures.filePath("good.gif"));
        // A picture the disk refuses to read is no better.
        const QString refused = write("refused.gif", solidGif(90, 90));
        d.platform().scriptedFiles().injectFault(refused, 70, ScriptedFileSystem::Read);
        browse("Command9", refused);
        QCOMPARE(d.text("DynaBut", "Text2"), QString("refused.gif"));
        QCOMPARE(d.text("DynaBut", "Text26"), QString("20"));
        QVERIFY(preview(0).isNull());
        QVERIFY(d.messages().isEmpty());
        // Cancel changes nothing.
        d.ok({{"op", "answer_file"}, {"paths", QJsonArray{QJsonValue::Null}}});
        d.click("DynaBut", "Command9");
        QCOMPARE(d.text("DynaBut", "Text2"), QString("refused.gif"));
    }
    void soundBrowse()
    {
        openDynaBut();
        next();
        browse("Command7", "/sounds/in.au");
        QCOMPARE(d.text("DynaBut", "Text28"), QString("in.au"));
        QCOMPARE(slotOf("RequiredPaths", 2), QString("/sounds/in.au"));
        next();
        browse("Command4", "/sounds/out.au");
        QCOMPARE(d.text("DynaBut", "Text29"), QString("out.au"));
        QCOMPARE(slotOf("RequiredPaths", 4), QString("/sounds/out.au"));
        const QJsonArray dialogs = d.ok({{"op", "dialogs"}}).toArray();
        QCOMPARE(dialogs[0].toObject().value("filter").toString(), SoundFilter);
        QCOMPARE(dialogs[0].toObject().value("title").toString(), QString("Browse..."));
        QCOMPARE(dialogs[0].toObject().value("filter_index").toInt(), 2);
    }
    void doneHandsOverWithTheFiles()
    {
        openDynaBut();
        const QString base = write("b.gif", solidGif(50, 20));
        browse("Command9", base);
        d.setText("DynaBut", "Text5", "Home");
        next();
        browse("Command7", "/snd/hover.au");
        next();
        browse("Command4", "/snd/press.au");
        d.setText("DynaBut", "Text27", "index.html");
        d.on("DynaBut", "Combo1", "choose", {{"item", "_blank"}});
        next();
        d.on("DynaBut", "Combo6", "choose", {{"item", 1}});
        d.on("DynaBut", "Combo8", "choose", {{"item", "2"}});
        d.on("DynaBut", "Combo5", "choose", {{"item", "Dialog"}});
        d.on("DynaBut", "Combo3", "choose", {{"item", "right"}});
        next();
        const QString expected = "<APPLET CODE=\"ButtonPLUS3.class\" HEIGHT=\"20\" WIDTH=\"50\">\r\n" + Head +
                                 "<PARAM NAME=TEXT VALUE=\"Home||\">\r\n"
                                 "<PARAM NAME=IMAGE VALUE=\"b.gif||\">\r\n"
                                 "<PARAM NAME=URL VALUE=\"index.html\">\r\n"
                                 "<PARAM NAME=TARGET VALUE=\"_blank\">\r\n"
                                 "<PARAM NAME=SOUND VALUE=\"hover.au|press.au\">\r\n"
                                 "<PARAM NAME=FONTNAME VALUE=\"Dialog\">\r\n"
                                 "<PARAM NAME=BGCOLOR VALUE=\"0,0,255\">\r\n"
                                 "<PARAM NAME=TEXTALIGN VALUE=\"right\">\r\n"
                                 "<PARAM NAME=HIGHLIGHT VALUE=\"2\">\r\n"
                                 "<A HREF=\"index.html\"  TARGET=\"_blank\"><IMG SRC=\"b.gif\" border=0></A>\r\n"
                                 "</APPLET>\r\n";
        const QJsonObject s = d.session();
        QCOMPARE(s.value("GeneratedCode").toString(), expected);
        QCOMPARE(s.value("EffectId").toInt(), 5);
        QCOMPARE(s.value("RequiredClasses").toArray(), (QJsonArray{"ButtonPLUS3.class", "", ""}));
        QStringList files(51), paths(51);
        files[0] = "b.gif";
        files[2] = "hover.au";
        files[4] = "press.au";
        paths[0] = base;
        paths[2] = "/snd/hover.au";
        paths[4] = "/snd/press.au";
        QCOMPARE(s.value("RequiredFiles").toArray(), QJsonArray::fromStringList(files));
        QCOMPARE(s.value("RequiredPaths").toArray(), QJsonArray::fromStringList(paths));
        const QJsonArray m = d.messages();
        QCOMPARE(m.size(), 1);
        QCOMPARE(messageText(m[0]), RequiredFiles);
        QCOMPARE(messageStyle(m[0]), 48);
        QVERIFY(!d.shown("DynaBut"));
        QVERIFY(d.modal("Preview"));
        QCOMPARE(d.text("Preview", "Text1"), expected);
        QCOMPARE(d.text("Preview", "Label3"), QString(" Required Java class files:  ButtonPLUS3.class"));
        // Back from Step 1 to the last page; Done again gives the same code.
        d.click("Preview", "Command14");
        QVERIFY(d.shown("DynaBut"));
        QCOMPARE(frontPage(), 3);
        next();
        QCOMPARE(d.session().value("GeneratedCode").toString(), expected);
    }
    void sizesThatAreNoNumbersOnTheFirstDone()
    {
        openDynaBut();
        d.setText("DynaBut", "Text5", "Go");
        d.setText("DynaBut", "Text26", "wide");
        d.setText("DynaBut", "Text25", "30");
        for (int i = 0; i < 4; ++i)
            next();
        const QJsonArray m = d.messages();
        QCOMPARE(m.size(), 2);
        QCOMPARE(messageText(m[0]), SizeMessage);
        QCOMPARE(messageStyle(m[0]), 48);
        QCOMPARE(messageText(m[1]), RequiredFiles);
        QVERIFY(d.session().value("GeneratedCode").toString().startsWith(
            "<APPLET CODE=\"ButtonPLUS3.class\" HEIGHT=\"30\">\r\n"));
        // Back in the form with a width, then without one again: the width
        // of the Done before stays.
        d.click("Preview", "Command14");
        d.setText("DynaBut", "Text26", "75");
        next();
        next();
        d.click("Preview", "Command14");
        d.setText("DynaBut", "Text26", "auto");
        next();
        next();
        QVERIFY(d.session().value("GeneratedCode").toString().startsWith(
            "<APPLET CODE=\"ButtonPLUS3.class\" HEIGHT=\"30\" WIDTH=\"75\">\r\n"));
    }
    void colourPicks()
    {
        openDynaBut();
        for (int i = 0; i < 3; ++i)
            next();
        d.ok({{"op", "answer_color"}, {"values", QJsonArray{1 + 2 * 256 + 3 * 65536, 200}}});
        d.click("DynaBut", "Label10");
        d.click("DynaBut", "Label3");
        QCOMPARE(d.text("DynaBut", "Combo6"), QString("1,2,3"));
        QCOMPARE(d.text("DynaBut", "Combo2"), QString("200,0,0"));
        QCOMPARE(d.text("DynaBut", "Label10"), QString(""));
        QCOMPARE(d.text("DynaBut", "Label3"), QString(""));
    }
    void finishCancelAndHelp()
    {
        openDynaBut();
        d.click("DynaBut", "Command3");
        QCOMPARE(d.help(), (QJsonArray{QJsonArray{"DynaBut", QJsonValue::Null}}));
        const QString help = QString::fromUtf8(d.app().platform().files().readFile(d.app().helpFile()).value_or(""));
        QVERIFY(help.contains("<a name=\"DynaBut\"></a>"));
        QVERIFY(help.contains("<a href=\"#DynaBut\">"));
        d.setText("DynaBut", "Text5", "x");
        d.click("DynaBut", "Command1");
        QVERIFY(!d.loaded("DynaBut"));
        d.click("QLMain", "mnuAppletsDynaBut");
        QCOMPARE(d.text("DynaBut", "Text5"), QString());
        d.setText("DynaBut", "Text5", "x");
        for (int i = 0; i < 4; ++i)
            next();
        for (int i = 0; i < 3; ++i)
            d.click("Preview", "Command15");
        d.click("Preview", "Command5");
        QVERIFY(!d.loaded("DynaBut"));
    }

    // Re-edit.
    void pastedButtonComesBackIntoItsFields()
    {
        d.start();
        DynaButModel::Fields f = everyField();
        f.verticalAlign = "middle";  // not in its list
        const QString code = DynaButModel::emitCode(f);
        pasteForReEdit(d, code);
        QVERIFY(!d.loaded("EditAppletForm"));
        QVERIFY(d.shown("DynaBut"));
        QVERIFY(!d.modal("DynaBut"));
        QCOMPARE(d.session().value("ClassPrefix8").toString(), QString("\"ButtonP"));
        const QList<QPair<const char*, const char*>> values = {
            {"Text2", "base.gif"}, {"Text6", "enter.gif"}, {"Text23", "click.jp"}, {"Text28", "in.au"},
            {"Text29", "out.a"},   {"Text5", "Go"},        {"Text22", "Go!"},      {"Text24", "Gon"},
            {"Text27", "next.html"}, {"Combo1", ""},       {"Text26", "120"},      {"Text25", "40"},
            {"Combo6", "0,0,255"}, {"Combo2", "255,255,0"}, {"Combo5", "Helvetica"}, {"Combo7", "12"},
            {"Combo3", "center"},  {"Combo4", ""},         {"Combo8", "3"},
        };
        for (const auto& [control, value] : values)
            QCOMPARE(d.text("DynaBut", control), QString(value));
        QCOMPARE(d.session().value("ReEditMode").toInt(), 0);
        QCOMPARE(frontPage(), 0);
        // The files are known by name only.
        QCOMPARE(d.session().value("RequiredPaths").toArray(), QJsonArray::fromStringList(QStringList(51, QString())));
        for (int i = 0; i < 4; ++i)
            next();
        QCOMPARE(d.session().value("RequiredFiles").toArray()[3].toString(), QString("click.jp"));
    }
    void olderButtonCodeByItsUnquotedName()
    {
        d.start();
        pasteForReEdit(d, "<APPLET CODE=Button1.class WIDTH=90 HEIGHT=\"30\">\r\n"
                          "<PARAM NAME=BASE.IMAGE VALUE=\"b.gif\">\r\n"
                          "<PARAM NAME=CLICK.SOUND VALUE=\"c.au\">\r\n"
                          "<PARAM NAME=BASE.FONTNAME VALUE=\"Arial\">\r\n"
                          "<PARAM NAME=TEXTALIGN VALUE=\"middle\">\r\n</APPLET>\r\n");
        QVERIFY(d.shown("DynaBut"));
        QCOMPARE(d.text("DynaBut", "Text2"), QString("b.gif"));
        QCOMPARE(d.text("DynaBut", "Text29"), QString("c.au"));
        QCOMPARE(d.text("DynaBut", "Combo5"), QString("Arial"));
        QCOMPARE(d.text("DynaBut", "Combo3"), QString());
        QCOMPARE(d.text("DynaBut", "Text26"), QString("90 HEIGHT="));
        QCOMPARE(d.text("DynaBut", "Text25"), QString("30"));
    }
    void damagedPastesNeverHurt()
    {
        const QString code = DynaButModel::emitCode(everyField());
        DamagedCode damage(5051);
        QList<QString> pastes;
        for (int i = 0; i < 40; ++i)
            pastes << damage.any(code);
        pastes << damage.buried(code) << damage.buried(damage.linesDoubled(code));
        for (const QString& paste : pastes) {
            d.start();
            const qint64 ms = pasteForReEdit(d, paste);
            QVERIFY2(ms < 1000, qPrintable(QString::number(ms)));
            QVERIFY(!d.loaded("EditAppletForm"));
            QVERIFY(d.shown("QLMain"));
            if (d.loaded("DynaBut")) {
                QCOMPARE(d.session().value("ReEditMode").toInt(), 0);
                for (int i = 0; i < 4; ++i)
                    next();
                QVERIFY(d.loaded("Preview") || !d.messages().isEmpty());
            }
        }
    }
};

QL_TEST_MAIN(DynaButTest)
#include "test_dynabut.moc"
