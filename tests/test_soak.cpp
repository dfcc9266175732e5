// Soak: a child "quillet --automation" driven with random requests for a
// bounded time, over every form that the program registers. It fails when the
// child crashes, hangs (no answer within 10 s), breaks the protocol, or its
// standard error carries a sanitizer report; it then prints the seed and the
// last requests, to replay.
//
//   test_soak [--seconds N] [--seed S] [--actions N]
//
// QUILLET_SOAK_SECONDS (default 60), QUILLET_SOAK_SEED (default random) and
// QUILLET_SOAK_ACTIONS (default unbounded) set the same from the environment;
// the arguments win. QUILLET_BINARY names the program; QUILLET_SOAK_LOG, when
// set, names a file that receives every request and its answer.
//
// Nothing that the program writes may land outside the soak's own folder: its
// texts never hold "..", every file dialog is answered with a path inside it,
// HOME points into it, and the folder lists of a form are brought back into
// it before each action on that form.

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>
#include <QProcess>
#include <QSet>
#include <QTemporaryDir>
#include <cstdio>
#include <deque>
#include <optional>
#include <random>

namespace {

const int AnswerLimitMs = 10000;
const int RecentKept = 30;

struct Failure {
    QString reason;
};

// The words that mean a sanitizer found something.
const char* const SanitizerReports[] = {"ERROR: AddressSanitizer", "runtime error:", "LeakSanitizer",
                                        "ERROR: ThreadSanitizer", "ERROR: MemorySanitizer"};

QByteArray compact(const QJsonObject& o)
{
    return QJsonDocument(o).toJson(QJsonDocument::Compact);
}

// A 1 x 1 GIF picture.
const unsigned char TinyGif[] = {0x47, 0x49, 0x46, 0x38, 0x39, 0x61, 0x01, 0x00, 0x01, 0x00, 0x80, 0x00, 0x00, 0x00, 0x00,
                                 0x00, 0xFF, 0xFF, 0xFF, 0x21, 0xF9, 0x04, 0x01, 0x00, 0x00, 0x00, 0x00, 0x2C, 0x00, 0x00,
                                 0x00, 0x00, 0x01, 0x00, 0x01, 0x00, 0x00, 0x02, 0x02, 0x44, 0x01, 0x00, 0x3B};

// The child program over its standard input and output.
class Child {
public:
    Child(const QString& binary, const QString& home, const QString& workFolder)
    {
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.remove("QT_QPA_PLATFORM");
        env.insert("HOME", home);
        process_.setProcessEnvironment(env);
        process_.setWorkingDirectory(workFolder);
        process_.start(binary, {"--automation"});
        if (!process_.waitForStarted(10000))
            throw Failure{QStringLiteral("the program did not start: %1").arg(process_.errorString())};
    }
    ~Child()
    {
        if (process_.state() != QProcess::NotRunning) {
            process_.kill();
            process_.waitForFinished(5000);
        }
    }

    // Sends one line and reads its one answer.
    QJsonObject send(const QByteArray& line)
    {
        process_.write(line + "\n");
        QElapsedTimer clock;
        clock.start();
        while (!process_.canReadLine()) {
            checkAlive();
            const int left = AnswerLimitMs - int(clock.elapsed());
            if (left <= 0)
                throw Failure{QStringLiteral("hang: no answer within %1 s").arg(AnswerLimitMs / 1000)};
            process_.waitForReadyRead(std::min(left, 500));
        }
        const QByteArray answerLine = process_.readLine();
        scanErrors();
        QJsonParseError error;
        const QJsonDocument doc = QJsonDocument::fromJson(answerLine, &error);
        if (error.error != QJsonParseError::NoError || !doc.isObject() || !doc.object().value("ok").isBool())
            throw Failure{QStringLiteral("not an answer: %1").arg(QString::fromUtf8(answerLine.left(300)))};
        const QJsonObject answer = doc.object();
        if (!answer.value("ok").toBool()) {
            const QString kind = answer.value("error").toString();
            if (kind != "AssertionError" && kind != "LookupError" && kind != "ValueError")
                throw Failure{QStringLiteral("an answer of an unknown kind: %1").arg(QString::fromUtf8(answerLine))};
        }
        if (process_.canReadLine())
            throw Failure{QStringLiteral("two answers to one request: %1").arg(QString::fromUtf8(process_.readLine()))};
        return answer;
    }

    // Ends the input and waits for a clean end.
    void finish()
    {
        process_.closeWriteChannel();
        if (!process_.waitForFinished(20000))
            throw Failure{QStringLiteral("hang: the program did not end with its input")};
        scanErrors();
        if (process_.exitStatus() != QProcess::NormalExit || process_.exitCode() != 0)
            throw Failure{QStringLiteral("the program ended badly at the end of its input (exit code %1)")
                              .arg(process_.exitCode())};
        if (!process_.readAllStandardOutput().isEmpty())
            throw Failure{QStringLiteral("output after the last answer")};
    }

    QByteArray errorTail() const { return errors_.right(3000); }

private:
    void checkAlive()
    {
        if (process_.state() != QProcess::NotRunning)
            return;
        scanErrors();
        if (process_.exitStatus() == QProcess::CrashExit)
            throw Failure{QStringLiteral("crash: the program died (%1)").arg(process_.errorString())};
        throw Failure{QStringLiteral("crash: the program exited with code %1").arg(process_.exitCode())};
    }

    void scanErrors()
    {
        const QByteArray fresh = process_.readAllStandardError();
        if (fresh.isEmpty())
            return;
        // A report may straddle two reads.
        const QByteArray window = errors_.right(64) + fresh;
        errors_ += fresh;
        if (errors_.size() > 1 << 20)
            errors_ = errors_.right(1 << 16);
        for (const char* report : SanitizerReports) {
            if (window.contains(report))
                throw Failure{QStringLiteral("sanitizer report on standard error: %1").arg(report)};
        }
    }

    QProcess process_;
    QByteArray errors_;
};

class Soak {
public:
    Soak(quint64 seed, qint64 seconds, qint64 maxActions, const QString& binary)
        : seed_(seed)
        , seconds_(seconds)
        , maxActions_(maxActions)
        , binary_(binary)
        , rng_(seed)
    {
    }

    int run()
    {
        std::printf("soak: seed %llu, %lld s%s\n", (unsigned long long)seed_, (long long)seconds_,
                    maxActions_ > 0 ? qPrintable(QStringLiteral(", at most %1 requests").arg(maxActions_)) : "");
        std::fflush(stdout);
        clock_.start();
        if (!qEnvironmentVariableIsEmpty("QUILLET_SOAK_LOG")) {
            log_.setFileName(qEnvironmentVariable("QUILLET_SOAK_LOG"));
            log_.open(QIODevice::WriteOnly | QIODevice::Truncate);
        }
        try {
            makeSandbox();
            child_.emplace(binary_, box_ + "/home", box_);
            soak();
            child_->finish();
        } catch (const Failure& f) {
            report(f.reason);
            return 1;
        } catch (const Stop&) {
            try {
                child_->finish();
            } catch (const Failure& f) {
                report(f.reason);
                return 1;
            }
        }
        const double seconds = double(clock_.elapsed()) / 1000.0;
        std::printf("soak: %lld requests in %.1f s, %.0f per second, of them %lld actions on controls, %.0f per "
                    "second; %lld programs started\n",
                    (long long)sent_, seconds, double(sent_) / seconds, (long long)actions_, double(actions_) / seconds,
                    (long long)starts_);
        std::printf("soak: answers: %lld ok, %lld AssertionError, %lld LookupError, %lld ValueError\n",
                    (long long)answered_["ok"], (long long)answered_["AssertionError"],
                    (long long)answered_["LookupError"], (long long)answered_["ValueError"]);
        for (auto it = actionsByForm_.begin(); it != actionsByForm_.end(); ++it)
            std::printf("soak:   %-16s opened %4lld times, %6lld actions\n", qPrintable(it.key()),
                        (long long)opened_.value(it.key()), (long long)it.value());
        for (const QString& form : allForms_) {
            if (!opened_.contains(form) && sent_ >= 2000) {
                std::printf("soak: FAILED: the form %s was never opened\n", qPrintable(form));
                return 1;
            }
        }
        std::fflush(stdout);
        return 0;
    }

private:
    struct Stop {};
    struct Control {
        QString name;
        QString kind;
    };

    // ---- Randomness

    quint64 below(quint64 n) { return n == 0 ? 0 : rng_() % n; }
    int belowInt(int n) { return int(below(quint64(std::max(n, 0)))); }
    bool chance(double p) { return double(rng_() >> 11) * (1.0 / 9007199254740992.0) < p; }
    template <class T>
    const T& pick(const QList<T>& list)
    {
        return list[belowInt(int(list.size()))];
    }

    // ---- Requests

    QJsonObject send(const QJsonObject& request) { return sendLine(compact(request)); }

    QJsonObject sendLine(const QByteArray& line)
    {
        if (clock_.elapsed() >= seconds_ * 1000 || (maxActions_ > 0 && sent_ >= maxActions_))
            throw Stop{};
        ++sent_;
        recent_.push_back(line);
        if (recent_.size() > size_t(RecentKept))
            recent_.pop_front();
        const QJsonObject answer = child_->send(line);
        if (log_.isOpen())
            log_.write(line.left(2000) + "\n    -> " + compact(answer).left(2000) + "\n");
        ++answered_[answer.value("ok").toBool() ? QStringLiteral("ok") : answer.value("error").toString()];
        return answer;
    }

    QJsonValue value(const QJsonObject& request) { return send(request).value("value"); }

    QJsonObject on(const QString& form, const QString& control, const QString& op, QJsonObject extra = {})
    {
        static const QSet<QString> readers = {"text",   "visible",  "enabled",  "tooltip",   "focus",  "geometry",
                                              "font",   "back_color", "fore_color", "on_top", "items", "selected",
                                              "path",   "read_only", "password_char", "selection", "editable",
                                              "entries", "checked", "value", "range"};
        // A form writes files into its own folder lists: they are in the
        // sandbox before anything is done on it.
        if (!readers.contains(op))
            fence(form);
        extra.insert("op", op);
        extra.insert("form", form);
        extra.insert("control", control);
        ++actionsByForm_[form];
        ++actions_;
        const QJsonObject answer = send(extra);
        lookupFailed_ = answer.value("error").toString() == "LookupError";
        return answer;
    }

    // ---- The sandbox

    void makeSandbox()
    {
        if (!root_.isValid())
            throw Failure{QStringLiteral("no temporary folder for the soak")};
        // Deep, so that no relative name can climb out of it.
        box_ = root_.path() + "/s/a/n/d/b/o/x";
        for (const char* sub : {"home", "program", "pages/sub", "media/folder.gif", "media/more"})
            QDir().mkpath(box_ + "/" + sub);
        const QByteArray gif(reinterpret_cast<const char*>(TinyGif), sizeof TinyGif);
        auto write = [](const QString& path, const QByteArray& bytes) {
            QFile file(path);
            if (file.open(QIODevice::WriteOnly))
                file.write(bytes);
        };
        QByteArray garbage;
        for (int i = 0; i < 4096; ++i)
            garbage.append(char(below(256)));
        for (const char* name : {"real.gif", "second.gif", "faulted.gif", "odd name's \"q\".gif",
                                 "bild-\xc3\xa4\xe2\x82\xac.gif", "more/third.gif"})
            write(box_ + "/media/" + QString::fromUtf8(name), gif);
        write(box_ + "/media/garbage.gif", garbage);
        write(box_ + "/media/picture.jpg", garbage.left(100));
        write(box_ + "/media/sound.au", garbage.left(200));
        write(box_ + "/media/empty.gif", QByteArray());
        write(box_ + "/media/notes.txt", "not a picture\r\n");
        for (const char* name : {"ColorSwirl.class", "Animate1.class", "Clock1.class"})
            write(box_ + "/program/" + name, garbage.left(64));
        folders_ = {box_, box_ + "/pages", box_ + "/pages/sub", box_ + "/media", box_ + "/media/more",
                    box_ + "/home"};
        files_ = {box_ + "/media/real.gif",     box_ + "/media/second.gif",   box_ + "/media/more/third.gif",
                  box_ + "/media/faulted.gif",  box_ + "/media/garbage.gif",  box_ + "/media/empty.gif",
                  box_ + "/media/notes.txt",    box_ + "/media/picture.jpg",  box_ + "/media/sound.au",
                  box_ + "/media/missing.gif",  box_ + "/media/folder.gif",   box_ + "/nowhere/missing.gif",
                  box_ + "/media/odd name's \"q\".gif", box_ + "/media/bild-\u00e4\u20ac.gif",
                  box_ + "/pages/page.htm",     "relative.gif",                ""};
    }

    bool inSandbox(const QString& path) const
    {
        const QString clean = QDir::cleanPath(path);
        return clean == box_ || clean.startsWith(box_ + "/");
    }

    // Brings the folder lists of a form back into the sandbox.
    void fence(const QString& form)
    {
        for (const Control& c : controlsByForm_.value(form)) {
            if (c.kind != "dirlist")
                continue;
            const QJsonObject answer = send({{"op", "path"}, {"form", form}, {"control", c.name}});
            if (answer.value("error").toString() == "LookupError")
                return;  // the form is not loaded
            if (!inSandbox(answer.value("value").toString()))
                send({{"op", "set_path"}, {"form", form}, {"control", c.name}, {"path", pick(folders_)}});
        }
    }

    // ---- Texts

    QString randomText(bool mayBeHuge = true)
    {
        static const QStringList pieces = {
            "", "Hello", "Swirly text", " ", "  leading", "trailing  ", "\"", "'", "\"\"", "\\\"", "\\", "\\\\",
            "C:\\path\\file.gif", "/tmp/x.gif", "\n", "\r\n", "\r", "\t", "\u00e4\u00f6\u00fc\u00df", "\u65e5\u672c\u8a9e",
            "\U0001F600", "\u202e", "\ufeff", QString(QChar(0)), "\u0001", "\u001b[31m", "\u007f", "<APPLET", "</APPLET>",
            "<PARAM NAME=", " VALUE=\"", ">", "&amp;", "<script>", "-1", "0", "65535", "2147483648",
            "99999999999999999999", "1e308", "NaN", " 12abc", "255,0,0", "0,0", "%s%n", "{\"op\": \"start\"}",
            "CODE=\"ColorSwirl.class\"", "WIDTH=", "HEIGHT=\"41\"", QString(300, 'W'),
        };
        QString text;
        if (mayBeHuge && chance(0.03)) {
            const int size = 100000;
            text.reserve(size);
            if (chance(0.5)) {
                while (text.size() < size)
                    text += pick(pieces);
                text.truncate(size);
            } else {
                text = QString(size, QChar(ushort(0x20 + below(0x5f))));
            }
        } else {
            const int count = 1 + belowInt(6);
            for (int i = 0; i < count; ++i)
                text += pick(pieces);
            if (chance(0.1))
                text += QChar(ushort(0xD800 + below(0x800)));  // a lone half of a surrogate pair
        }
        // A name that climbs could leave the sandbox.
        text.replace("..", ".,");
        return text;
    }

    QJsonValue randomIndex(int count)
    {
        switch (belowInt(10)) {
        case 0: return -1;
        case 1: return count;
        case 2: return 2.5;
        case 3: return chance(0.5) ? 1e10 : -1e10;
        case 4: return "no such item";
        default: return count > 0 ? belowInt(count) : 0;
        }
    }

    // ---- Programs and forms

    void startProgram()
    {
        QJsonObject request{{"op", "start"}};
        if (chance(0.5))
            request.insert("program_folder", box_ + "/program");
        if (chance(0.5)) {
            QJsonArray settings;
            for (const char* key : {"Browser", "HTMLEditor"}) {
                if (chance(0.5))
                    settings.append(QJsonArray{"Apps", key, chance(0.5) ? randomText(false) : "/usr/bin/true"});
            }
            if (chance(0.3))
                settings.append(QJsonArray{"FTP", "Server1", randomText(false)});
            request.insert("settings", settings);
        }
        if (chance(0.5))
            request.insert("browser_command", chance(0.2) ? QJsonValue(QJsonValue::Null) : QJsonValue(randomText(false)));
        if (chance(0.5) && !constants_.isEmpty()) {
            request.insert("http", QJsonObject{{constants_.value("VERSION_URL").toString(), randomText(false)},
                                               {constants_.value("WHATSNEW_URL").toString(), randomText(false)}});
        }
        if (!send(request).value("ok").toBool())
            throw Failure{QStringLiteral("a plain start failed")};
        ++starts_;
        controlsByForm_.clear();
        send({{"op", "file_fault"}, {"path", box_ + "/media/faulted.gif"}, {"error", 70}});
        if (constants_.isEmpty())
            constants_ = value({{"op", "constants"}}).toObject();
        allForms_.clear();
        for (const QJsonValue& f : value({{"op", "forms"}}).toArray())
            allForms_ << f.toString();
        if (allForms_.isEmpty())
            throw Failure{QStringLiteral("the program names no forms")};
    }

    QList<Control> controlsOf(const QString& form)
    {
        const QJsonObject answer = send({{"op", "controls"}, {"form", form}});
        QList<Control> out;
        if (!answer.value("ok").toBool())
            return out;
        for (const QJsonValue& c : answer.value("value").toArray())
            out.append({c.toObject().value("name").toString(), c.toObject().value("kind").toString()});
        controlsByForm_.insert(form, out);
        return out;
    }

    bool loaded(const QString& form) { return value({{"op", "loaded"}, {"form", form}}).toBool(); }

    QStringList loadedForms()
    {
        QStringList out;
        for (const QString& f : allForms_) {
            if (loaded(f))
                out << f;
        }
        return out;
    }

    void openForm(const QString& form)
    {
        send({{"op", "open"}, {"form", form}});
        ++opened_[form];
        controlsOf(form);
    }

    // ---- Answers to the program's questions

    void queueAnswers()
    {
        if (chance(0.15)) {
            static const QStringList words = {"Yes", "No", "Cancel", "OK", "Retry", "Ignore", "Abort", "Maybe"};
            QJsonArray list;
            for (int i = 0, n = 1 + belowInt(3); i < n; ++i)
                list.append(pick(words));
            send({{"op", "answer"}, {"words", list}});
        }
        if (chance(0.15)) {
            QJsonArray list;
            for (int i = 0, n = 1 + belowInt(2); i < n; ++i)
                list.append(chance(0.15) ? QJsonValue(QJsonValue::Null) : QJsonValue(pick(files_)));
            send({{"op", "answer_file"}, {"paths", list}});
        }
        if (chance(0.1)) {
            QJsonArray list;
            for (int i = 0, n = 1 + belowInt(2); i < n; ++i) {
                if (chance(0.15))
                    list.append(QJsonValue(QJsonValue::Null));
                else
                    list.append(chance(0.3) ? int(below(2) * 0xFFFFFF) : int(below(0x1000000)));
            }
            send({{"op", "answer_color"}, {"values", list}});
        }
    }

    // ---- Re-edit

    QString appletCode()
    {
        if (!codes_.isEmpty() && chance(0.4))
            return pick(codes_);
        QStringList classes = constants_.value("APPLETS").toObject().keys();
        classes << "Unknown.class" << "Anim" << "";
        QString code = QStringLiteral("<APPLET CODE=%1%2%1 WIDTH=\"%3\" HEIGHT=\"%4\">\r\n")
                           .arg(chance(0.8) ? "\"" : "", pick(classes))
                           .arg(belowInt(800))
                           .arg(chance(0.1) ? QString("x") : QString::number(belowInt(600)));
        static const QStringList names = {"TEXT", "FONT", "BGCOLOR", "XLOC", "YLOC", "WIZARD", "COPYRIGHT",
                                          "SPEED", "IMAGE1", "SOUND", "FONTSIZE", "COLOR", "DELAY", "text"};
        for (int i = 0, n = belowInt(10); i < n; ++i) {
            code += QStringLiteral("<PARAM NAME=%1 VALUE=\"%2\">\r\n")
                        .arg(chance(0.9) ? pick(names) : randomText(false), randomText(false));
        }
        code += "</APPLET>\r\n";
        return code;
    }

    QString mangled(QString code)
    {
        if (code.isEmpty())
            return code;
        switch (belowInt(5)) {
        case 0: code.truncate(belowInt(int(code.size()))); break;
        case 1: code.remove(belowInt(int(code.size())), 1 + belowInt(20)); break;
        case 2: code.insert(belowInt(int(code.size())), randomText(false)); break;
        case 3: code.replace("\"", ""); break;
        default: break;
        }
        return code;
    }

    void reEdit()
    {
        if (chance(0.5))
            openForm("EditAppletForm");
        else
            on("QLMain", "mnuEditApplet", "click");
        queueAnswers();
        const QString code = chance(0.7) ? mangled(appletCode()) : appletCode();
        on("EditAppletForm", "Text1", "set_text", {{"text", code}});
        on("EditAppletForm", "Command1", "click");
        if (chance(0.5) && loaded("EditAppletForm")) {
            on("EditAppletForm", QStringLiteral("Option%1").arg(1 + belowInt(3)), "click");
            on("EditAppletForm", chance(0.8) ? "Command3" : "Command4", "click");
        }
    }

    // ---- One random action on one control

    void act(const QString& form, const Control& c)
    {
        static const QStringList keys = {"Enter", "Escape", "Tab", "Space", "Backspace", "Delete", "Up", "Down",
                                         "Left", "Right", "Home", "End", "PageUp", "PageDown", "F1", "F4", "F10",
                                         "a", "Z", "1", "\u00e9", "\u0001", "NoSuchKey"};
        static const QStringList looks = {"text", "visible", "enabled", "tooltip", "focus", "geometry", "font",
                                          "back_color", "fore_color", "on_top"};
        const QString& k = c.kind;
        const bool lists = k == "list" || k == "filelist" || k == "combo" || k == "drivelist" || k == "tabstrip";
        const int roll = belowInt(100);
        if (roll < 8) {
            on(form, c.name, pick(looks));
        } else if (roll < 14) {
            on(form, c.name, "key", {{"key", pick(keys)}});
        } else if (roll < 17) {
            on(form, c.name, chance(0.5) ? "hover" : "right_click");
        } else if (roll < 19) {
            on(form, c.name, "double_click");
        } else if (roll < 20) {
            // A request that makes no sense, now and then.
            on(form, chance(0.5) ? c.name : QStringLiteral("qt_%1").arg(c.name), pick(looks + QStringList{"frobnicate"}),
               {{"item", 2.5}});
        } else if (k == "text") {
            textAction(form, c);
        } else if (k == "dirlist") {
            dirAction(form, c);
        } else if (lists) {
            listAction(form, c);
        } else if (k == "slider" || k == "updown" || k == "progress" || k == "scrollbar") {
            const QJsonObject range = on(form, c.name, "range").value("value").toObject();
            const int min = range.value("min").toInt(), max = range.value("max").toInt();
            QJsonValue v = min + belowInt(std::max(1, max - min + 1));
            if (chance(0.2))
                v = chance(0.5) ? QJsonValue(max + 1) : QJsonValue(0.5);
            on(form, c.name, chance(0.8) ? "set_value" : "value", {{"value", v}});
        } else if (k == "form") {
            const int pickOne = belowInt(20);
            if (pickOne == 0)
                on(form, c.name, "close");
            else if (pickOne == 1)
                on(form, c.name, "grab", {{"path", box_ + "/grab.png"}});
            else
                on(form, c.name, "key", {{"key", pick(QStringList{"Escape", "F1", "Enter", "Tab"})}});
        } else if (k == "menu" && chance(0.2)) {
            on(form, c.name, chance(0.5) ? "entries" : "checked");
        } else if (chance(0.03)) {
            const QList<Control> all = controlsByForm_.value(form);
            on(form, c.name, "drag_drop", {{"target", all.isEmpty() ? c.name : pick(all).name}});
        } else {
            queueAnswers();
            on(form, c.name, "click");
        }
    }

    void textAction(const QString& form, const Control& c)
    {
        const int roll = belowInt(10);
        if (roll < 4) {
            on(form, c.name, "set_text", {{"text", randomText()}});
        } else if (roll < 6) {
            QString text = randomText(false);
            text.truncate(200);
            on(form, c.name, "type_text", {{"text", text}});
        } else if (roll < 8) {
            const int size = on(form, c.name, "text").value("value").toString().size();
            const int start = chance(0.1) ? size + 1 : belowInt(size + 1);
            on(form, c.name, "set_selection", {{"start", start}, {"length", belowInt(size - start + 2)}});
            on(form, c.name, "selection");
        } else {
            on(form, c.name, pick(QStringList{"read_only", "password_char", "text", "selection"}));
        }
    }

    void listAction(const QString& form, const Control& c)
    {
        const QJsonArray items = on(form, c.name, "items").value("value").toArray();
        const int roll = belowInt(10);
        if (roll < 5) {
            QJsonValue item = randomIndex(int(items.size()));
            if (chance(0.3) && !items.isEmpty())
                item = items[belowInt(int(items.size()))];
            queueAnswers();
            on(form, c.name, "choose", {{"item", item}});
        } else if (roll < 6) {
            QJsonArray indexes;
            for (int i = 0, n = belowInt(4); i < n; ++i)
                indexes.append(randomIndex(int(items.size())));
            on(form, c.name, "select", {{"indexes", indexes}});
        } else if (roll < 7 && c.kind == "filelist") {
            on(form, c.name, "set_path", {{"path", pick(folders_) + (chance(0.1) ? "/missing" : "")}});
        } else if (roll < 8 && c.kind == "drivelist") {
            queueAnswers();
            on(form, c.name, "set_drive", {{"drive", items.isEmpty() || chance(0.2) ? QString("/nowhere") : items[0].toString()}});
        } else if (roll < 8 && (c.kind == "combo" || c.kind == "drivelist")) {
            on(form, c.name, chance(0.5) ? "set_text" : "type_text", {{"text", randomText(false).left(100)}});
        } else {
            on(form, c.name, pick(QStringList{"selected", "items", "editable", "text", "path"}));
        }
    }

    // A folder list moves only inside the sandbox: its entries are full paths.
    void dirAction(const QString& form, const Control& c)
    {
        const QJsonArray items = on(form, c.name, "items").value("value").toArray();
        QList<int> inside;
        for (int i = 0; i < items.size(); ++i) {
            if (inSandbox(items[i].toString()))
                inside << i;
        }
        const int roll = belowInt(10);
        if (roll < 4 && !inside.isEmpty()) {
            on(form, c.name, "choose", {{"item", pick(inside)}});
            if (chance(0.6))
                on(form, c.name, "double_click");
        } else if (roll < 7) {
            on(form, c.name, "set_path", {{"path", pick(folders_) + (chance(0.1) ? "/missing" : "")}});
        } else {
            on(form, c.name, pick(QStringList{"path", "selected", "items", "text"}));
        }
    }

    // ---- The walk

    void burst(const QString& first, int actions)
    {
        QString form = first;
        QList<Control> controls = controlsByForm_.value(form);
        for (int i = 0; i < actions; ++i) {
            if (controls.isEmpty() || (lookupFailed_ && !loaded(form))) {
                const QStringList open = loadedForms();
                if (open.isEmpty() || value({{"op", "ended"}}).toBool()) {
                    startProgram();
                    return;
                }
                form = pick(open);
                controls = controlsOf(form);
                if (controls.isEmpty())
                    continue;
            }
            if (chance(0.03))
                form = pick(allForms_);  // maybe not loaded: a LookupError
            act(form, pick(controls));
            if (chance(0.02)) {
                // A finished effect's code is good material for re-edit.
                const QString code = value({{"op", "session"}}).toObject().value("GeneratedCode").toString();
                if (!code.isEmpty() && !codes_.contains(code) && codes_.size() < 50)
                    codes_ << code;
                value({{"op", chance(0.5) ? "messages" : "dialogs"}});
            }
            if (chance(0.01))
                send({{"op", "set_clipboard"}, {"text", randomText(false)}});
        }
    }

    void soak()
    {
        startProgram();
        // Every form once, then at random.
        for (const QString& form : QStringList(allForms_)) {
            openForm(form);
            burst(form, 10);
        }
        while (true) {
            if (chance(0.03))
                startProgram();
            if (chance(0.25))
                reEdit();
            const QString form = pick(allForms_);
            openForm(form);
            burst(form, 10 + belowInt(50));
        }
    }

    void report(const QString& reason)
    {
        std::printf("soak: FAILED after %lld requests, %.1f s: %s\n", (long long)sent_, clock_.elapsed() / 1000.0,
                    qPrintable(reason));
        std::printf("soak: seed %llu; replay with QUILLET_SOAK_SEED=%llu QUILLET_SOAK_ACTIONS=%lld "
                    "QUILLET_SOAK_SECONDS=100000\n",
                    (unsigned long long)seed_, (unsigned long long)seed_, (long long)sent_);
        std::printf("soak: the last %d requests:\n", int(recent_.size()));
        for (const QByteArray& line : recent_) {
            if (line.size() > 400)
                std::printf("  %s... (%lld bytes)\n", line.left(400).constData(), (long long)line.size());
            else
                std::printf("  %s\n", line.constData());
        }
        if (child_) {
            const QByteArray tail = child_->errorTail();
            if (!tail.isEmpty())
                std::printf("soak: the program's standard error ends with:\n%s\n", tail.constData());
        }
        std::fflush(stdout);
    }

    const quint64 seed_;
    const qint64 seconds_;
    const qint64 maxActions_;
    const QString binary_;
    std::mt19937_64 rng_;
    QElapsedTimer clock_;
    QFile log_;
    QTemporaryDir root_{QDir::temp().filePath("quillet-soak-XXXXXX")};
    QString box_;
    QStringList folders_;
    QStringList files_;
    std::optional<Child> child_;
    QJsonObject constants_;
    QStringList allForms_;
    QMap<QString, QList<Control>> controlsByForm_;
    QStringList codes_;
    std::deque<QByteArray> recent_;
    qint64 sent_ = 0;
    qint64 starts_ = 0;
    qint64 actions_ = 0;
    bool lookupFailed_ = false;
    QMap<QString, qint64> answered_;
    QMap<QString, qint64> actionsByForm_;
    QMap<QString, qint64> opened_;
};

// A number from an argument "--name N", else from the environment, else the fallback.
std::optional<quint64> setting(const QStringList& args, const QString& option, const char* variable)
{
    const int at = int(args.indexOf(option));
    bool ok = false;
    if (at >= 0 && at + 1 < args.size()) {
        const quint64 v = args[at + 1].toULongLong(&ok);
        if (ok)
            return v;
    }
    const quint64 v = qEnvironmentVariable(variable).toULongLong(&ok);
    if (ok)
        return v;
    return std::nullopt;
}

}  // namespace

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    const QStringList args = application.arguments();
    const QString binary = qEnvironmentVariable("QUILLET_BINARY");
    if (binary.isEmpty()) {
        std::fprintf(stderr, "soak: QUILLET_BINARY names no program\n");
        return 2;
    }
    const quint64 seed = setting(args, "--seed", "QUILLET_SOAK_SEED").value_or(std::random_device{}());
    const qint64 seconds = qint64(setting(args, "--seconds", "QUILLET_SOAK_SECONDS").value_or(60));
    const qint64 actions = qint64(setting(args, "--actions", "QUILLET_SOAK_ACTIONS").value_or(0));
    Soak soak(seed, seconds, actions, binary);
    return soak.run();
}
