#include "platform/HelpViewer.h"

#include <QDesktopServices>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QRegularExpression>
#include <QScreen>
#include <QScrollBar>
#include <QShortcut>
#include <QSplitter>
#include <QStyle>
#include <QTextBrowser>
#include <QTextDocumentFragment>
#include <QToolButton>
#include <QTreeWidget>
#include <QUrl>
#include <QVBoxLayout>

namespace ql {

namespace {

struct Match {
    qsizetype start;
    qsizetype end;
    QString text;  // the anchor's name, or the heading's inner HTML
    int level = 0;
};

QList<Match> anchorsIn(const QString& html)
{
    // The name stands in double quotes, single quotes or none.
    static const QRegularExpression pattern(
        QStringLiteral(R"re(<a\s[^>]*?\bname\s*=\s*(?:"([^"]*)"|'([^']*)'|([^\s>"']+))[^>]*>(?:\s*</a\s*>)?)re"),
        QRegularExpression::CaseInsensitiveOption);
    QList<Match> out;
    for (auto it = pattern.globalMatch(html); it.hasNext();) {
        const QRegularExpressionMatch m = it.next();
        int quoting = 1;
        while (quoting < 3 && m.capturedStart(quoting) < 0)
            ++quoting;
        out.append({m.capturedStart(), m.capturedEnd(), m.captured(quoting)});
    }
    return out;
}

QList<Match> headingsIn(const QString& html)
{
    static const QRegularExpression pattern(QStringLiteral(R"(<h([1-6])\b[^>]*>(.*)</h\1\s*>)"),
                                            QRegularExpression::CaseInsensitiveOption |
                                                QRegularExpression::DotMatchesEverythingOption |
                                                QRegularExpression::InvertedGreedinessOption);
    QList<Match> out;
    for (auto it = pattern.globalMatch(html); it.hasNext();) {
        const QRegularExpressionMatch m = it.next();
        out.append({m.capturedStart(), m.capturedEnd(), m.captured(2), m.captured(1).toInt()});
    }
    return out;
}

// Text that may stand between a topic's anchors and its heading, or at the
// end of a topic before the next one.
bool isFiller(QStringView text)
{
    static const QRegularExpression filler(QStringLiteral(R"(^(?:\s|<(?:/?p|br|hr)\b[^>]*>)*$)"),
                                           QRegularExpression::CaseInsensitiveOption);
    return filler.match(text).hasMatch();
}

QString trimmedSection(const QString& html)
{
    static const QRegularExpression tail(QStringLiteral(R"((?:\s|<hr\b[^>]*>)*$)"),
                                         QRegularExpression::CaseInsensitiveOption);
    QString out = html;
    out.remove(tail);
    return out;
}

QString plainText(const QString& html)
{
    return QTextDocumentFragment::fromHtml(html).toPlainText().simplified();
}

// The part of a document between <tag ...> and </tag>, or nothing.
std::optional<QString> element(const QString& document, const QString& tag, bool withTags)
{
    const QRegularExpression pattern(QStringLiteral(R"(<%1\b[^>]*>(.*)</%1\s*>)").arg(tag),
                                     QRegularExpression::CaseInsensitiveOption |
                                         QRegularExpression::DotMatchesEverythingOption |
                                         QRegularExpression::InvertedGreedinessOption);
    const QRegularExpressionMatch m = pattern.match(document);
    if (!m.hasMatch())
        return std::nullopt;
    return withTags ? m.captured(0) : m.captured(1);
}

}  // namespace

QList<HelpTopic> helpTopics(const QString& document)
{
    const QString body = element(document, QStringLiteral("body"), false).value_or(document);
    const QList<Match> anchors = anchorsIn(body);
    const QList<Match> headings = headingsIn(body);

    // A topic starts at the anchors that stand right before a heading.
    QList<HelpTopic> topics;
    QList<qsizetype> starts;
    QList<bool> anchorUsed(anchors.size(), false);
    for (const Match& heading : headings) {
        qsizetype position = heading.start;
        QStringList names;
        for (qsizetype i = anchors.size() - 1; i >= 0; --i) {
            const Match& a = anchors[i];
            if (a.end > position)
                continue;
            if (!isFiller(QStringView(body).mid(a.end, position - a.end)))
                break;
            names.prepend(a.text);
            anchorUsed[i] = true;
            position = a.start;
        }
        if (names.isEmpty())
            continue;
        topics.append({names, {}, plainText(heading.text), heading.level, {}});
        starts.append(position);
    }

    if (topics.isEmpty()) {
        const QString title = plainText(element(document, QStringLiteral("title"), false).value_or(QString()));
        HelpTopic whole{{}, {}, title.isEmpty() ? QStringLiteral("Quillet Help") : title, 1, body};
        for (const Match& a : anchors)
            whole.innerAnchors.append(a.text);
        return {whole};
    }

    for (qsizetype i = 0; i < topics.size(); ++i) {
        const qsizetype end = i + 1 < topics.size() ? starts[i + 1] : body.size();
        topics[i].html = trimmedSection(body.mid(starts[i], end - starts[i]));
    }
    // What stands before the first topic opens it.
    const QString preamble = body.left(starts.first());
    if (!isFiller(preamble))
        topics.first().html.prepend(preamble);
    // The other anchors address the topic they stand in.
    for (qsizetype i = 0; i < anchors.size(); ++i) {
        if (anchorUsed[i])
            continue;
        qsizetype owner = 0;
        while (owner + 1 < starts.size() && starts[owner + 1] <= anchors[i].start)
            ++owner;
        topics[owner].innerAnchors.append(anchors[i].text);
    }
    return topics;
}

HelpViewer::HelpViewer()
    : contents_(new QTreeWidget(this))
    , browser_(new QTextBrowser(this))
    , back_(new QToolButton(this))
    , forward_(new QToolButton(this))
{
    setObjectName(QStringLiteral("QuilletHelp"));
    setWindowTitle(QStringLiteral("Quillet Help"));

    contents_->setObjectName(QStringLiteral("HelpContents"));
    contents_->setHeaderHidden(true);
    contents_->setRootIsDecorated(false);
    contents_->setItemsExpandable(false);
    contents_->setUniformRowHeights(true);
    browser_->setObjectName(QStringLiteral("HelpText"));
    browser_->setOpenLinks(false);

    auto navigation = [this](QToolButton* button, const QString& name, const QString& caption, const char* themeName,
                             QStyle::StandardPixmap fallback, QKeySequence::StandardKey key) {
        button->setObjectName(name);
        button->setText(caption);
        button->setIcon(QIcon::fromTheme(QString::fromLatin1(themeName), style()->standardIcon(fallback)));
        button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        button->setAutoRaise(true);
        button->setShortcut(key);
        button->setToolTip(QStringLiteral("%1 (%2)").arg(caption, button->shortcut().toString(QKeySequence::NativeText)));
    };
    navigation(back_, QStringLiteral("HelpBack"), QStringLiteral("Back"), "go-previous", QStyle::SP_ArrowBack,
               QKeySequence::Back);
    navigation(forward_, QStringLiteral("HelpForward"), QStringLiteral("Forward"), "go-next",
               QStyle::SP_ArrowForward, QKeySequence::Forward);
    connect(back_, &QToolButton::clicked, this, [this] { back(); });
    connect(forward_, &QToolButton::clicked, this, [this] { forward(); });
    connect(new QShortcut(QKeySequence(Qt::Key_Escape), this), &QShortcut::activated, this, &QWidget::close);

    connect(contents_, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) {
        const qsizetype index = items_.indexOf(item);
        if (index >= 0)
            go({int(index), QString()});
    });
    connect(browser_, &QTextBrowser::anchorClicked, this, [this](const QUrl& url) { openLink(url); });

    auto* bar = new QHBoxLayout;
    bar->setContentsMargins(4, 4, 4, 0);
    bar->addWidget(back_);
    bar->addWidget(forward_);
    bar->addStretch();

    splitter_ = new QSplitter(Qt::Horizontal, this);
    splitter_->addWidget(contents_);
    splitter_->addWidget(browser_);
    splitter_->setChildrenCollapsible(false);
    splitter_->setStretchFactor(1, 1);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    layout->addLayout(bar);
    layout->addWidget(splitter_, 1);

    // Room for the contents and for lines of some 80 characters.
    const QFontMetrics metrics = fontMetrics();
    resize(metrics.averageCharWidth() * 130, metrics.height() * 38);
    back_->setEnabled(false);
    forward_->setEnabled(false);
}

void HelpViewer::load(const QString& helpFile)
{
    const QDateTime stamp = QFileInfo(helpFile).lastModified();
    if (helpFile == loaded_ && stamp == loadedStamp_ && !topics_.isEmpty())
        return;
    loaded_ = helpFile;
    loadedStamp_ = stamp;
    QFile file(helpFile);
    if (file.open(QIODevice::ReadOnly)) {
        const QString document = QString::fromUtf8(file.readAll());
        head_ = element(document, QStringLiteral("head"), true).value_or(QString());
        topics_ = helpTopics(document);
    } else {
        head_.clear();
        topics_ = {HelpTopic{{}, {}, QStringLiteral("Quillet Help"), 1,
                             QStringLiteral("<h2>Quillet Help</h2><p>The help file %1 could not be opened.</p>")
                                 .arg(helpFile.toHtmlEscaped())}};
    }
    browser_->setSearchPaths({QFileInfo(helpFile).absolutePath()});

    // The contents: each topic under the last topic of a higher level.
    const QSignalBlocker quiet(contents_);
    contents_->clear();
    items_.clear();
    QList<QPair<int, QTreeWidgetItem*>> open;
    for (const HelpTopic& topic : topics_) {
        while (!open.isEmpty() && open.last().first >= topic.level)
            open.removeLast();
        auto* item = open.isEmpty() ? new QTreeWidgetItem(contents_) : new QTreeWidgetItem(open.last().second);
        item->setText(0, topic.heading);
        item->setToolTip(0, topic.heading);
        items_.append(item);
        open.append({topic.level, item});
    }
    contents_->expandAll();
    if (!isVisible())
        fitContents();
    history_.clear();
    at_ = -1;
}

void HelpViewer::fitContents()
{
    // As wide as the longest heading, within reason.
    const QFontMetrics metrics = contents_->fontMetrics();
    int widest = 0;
    for (const QTreeWidgetItem* item : items_) {
        int depth = 0;
        for (const QTreeWidgetItem* up = item->parent(); up; up = up->parent())
            ++depth;
        widest = qMax(widest, metrics.horizontalAdvance(item->text(0)) + depth * contents_->indentation());
    }
    const int margins = 2 * contents_->frameWidth() + metrics.averageCharWidth() * 3;
    const int wanted = qBound(metrics.averageCharWidth() * 18, widest + margins, metrics.averageCharWidth() * 40);
    splitter_->setSizes({wanted, qMax(width() - wanted, metrics.averageCharWidth() * 40)});
}

int HelpViewer::topicOf(const QString& anchor) const
{
    for (qsizetype i = 0; i < topics_.size(); ++i) {
        if (topics_[i].anchors.contains(anchor) || topics_[i].innerAnchors.contains(anchor))
            return int(i);
    }
    return -1;
}

void HelpViewer::showTopic(const QString& helpFile, const QString& form, std::optional<int> topic,
                           const QWidget* over)
{
    load(helpFile);
    const QString anchor = topic ? QStringLiteral("topic-%1").arg(*topic) : form;
    const int index = topicOf(anchor);
    // A form without a topic of its own gets the first page.
    if (index < 0)
        go({0, QString()});
    else
        go({index, topics_[index].innerAnchors.contains(anchor) ? anchor : QString()});
    if (!isVisible())
        placeOver(over);
    show();
    raise();
    activateWindow();
    browser_->setFocus();
}

QStringList HelpViewer::contents() const
{
    QStringList out;
    for (const QTreeWidgetItem* item : items_)
        out.append(item->text(0));
    return out;
}

QString HelpViewer::heading() const
{
    return at_ >= 0 ? topics_[history_[at_].topic].heading : QString();
}

QString HelpViewer::topicText() const
{
    return browser_->toPlainText();
}

void HelpViewer::back()
{
    if (!canGoBack())
        return;
    --at_;
    display(history_[at_]);
}

void HelpViewer::forward()
{
    if (!canGoForward())
        return;
    ++at_;
    display(history_[at_]);
}

void HelpViewer::go(const Place& place)
{
    const bool same = at_ >= 0 && history_[at_].topic == place.topic && history_[at_].anchor == place.anchor;
    if (!same) {
        history_.erase(history_.begin() + (at_ + 1), history_.end());
        history_.append(place);
        at_ = int(history_.size()) - 1;
    }
    display(place);
}

void HelpViewer::display(const Place& place)
{
    const HelpTopic& topic = topics_[place.topic];
    browser_->setHtml(QStringLiteral("<html>%1<body>%2</body></html>").arg(head_, topic.html));
    if (place.anchor.isEmpty())
        browser_->verticalScrollBar()->setValue(0);
    else
        browser_->scrollToAnchor(place.anchor);
    {
        const QSignalBlocker quiet(contents_);
        contents_->setCurrentItem(items_[place.topic]);
    }
    back_->setEnabled(canGoBack());
    forward_->setEnabled(canGoForward());
}

void HelpViewer::openLink(const QUrl& url)
{
    const bool inDocument = url.scheme().isEmpty() && (url.path().isEmpty() ||
                                                        url.path() == QFileInfo(loaded_).fileName());
    if (inDocument && url.hasFragment()) {
        const QString anchor = url.fragment();
        const int index = topicOf(anchor);
        if (index >= 0)
            go({index, topics_[index].innerAnchors.contains(anchor) ? anchor : QString()});
        return;
    }
    if (!url.scheme().isEmpty())
        QDesktopServices::openUrl(url);
}

void HelpViewer::placeOver(const QWidget* over)
{
    const QScreen* screen = over ? over->screen() : QGuiApplication::primaryScreen();
    if (!screen)
        return;
    const QRect area = screen->availableGeometry();
    if (width() > area.width() || height() > area.height())
        resize(qMin(width(), area.width()), qMin(height(), area.height()));
    QRect frame(QPoint(0, 0), frameGeometry().size());
    frame.moveCenter(over ? over->frameGeometry().center() : area.center());
    // Kept on the screen, its title bar first.
    if (frame.right() > area.right())
        frame.moveRight(area.right());
    if (frame.bottom() > area.bottom())
        frame.moveBottom(area.bottom());
    if (frame.left() < area.left())
        frame.moveLeft(area.left());
    if (frame.top() < area.top())
        frame.moveTop(area.top());
    move(frame.topLeft());
}

}  // namespace ql
