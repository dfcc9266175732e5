#pragma once

#include "core/EffectModel.h"

#include <QByteArray>

namespace ql {

// Password Protection: a JavaScript prompt in the page (one password, or one
// page per password), or a Perl CGI login whose script, password.cgi, the
// program writes into its own folder.
struct PasswordModel {
    enum class Scheme { JavaScript, Cgi };
    // The options of the JavaScript page; neither may be chosen.
    enum class Kind { Unchosen, OnePassword, PagePerPassword };

    struct Fields {
        Scheme scheme = Scheme::JavaScript;
        Kind kind = Kind::Unchosen;
        QString password;       // the one password of the JavaScript scheme
        QString target;         // page, or folder of the pages, it opens
        QString username;       // of the CGI login
        QString loginPassword;  // of the CGI login
        QString loginPage;      // URL the CGI login sends the browser on to
        QString scriptFolder;   // folder of password.cgi on the server
        QString perlPath = QStringLiteral("/usr/bin/perl");
    };

    static inline const QString ScriptFile = QStringLiteral("password.cgi");
    static inline const QString DefaultPerl = QStringLiteral("/usr/bin/perl");

    static const EffectDescription& description();
    // The JavaScript scheme takes anything; the CGI login needs a username,
    // a password and a page, each not blank.
    static std::optional<Refusal> validate(const Fields& fields);
    // The fields as Done leaves them: the JavaScript target loses one
    // closing "/"; the CGI page gets "http://" unless it starts with "http"
    // or "ftp:", the script folder is trimmed and ends in "/" (blank gives
    // none), a blank Perl path gives /usr/bin/perl.
    static Fields normalized(const Fields& fields);

    static QString javaScriptCode(const Fields& fields);
    // password.cgi: lines joined by line feeds, the whole closed by CRLF.
    static QByteArray cgiScript(const Fields& fields);
    // The login form that posts to password.cgi.
    static QString loginForm(const Fields& fields);
    // The hand-over of the scheme of the (normalized) fields.
    static HandOver handOver(const Fields& fields);
};

}  // namespace ql
