#pragma once

#include <QDateTime>
#include <QList>
#include <QStringList>
#include <QWidget>
#include <optional>

class QSplitter;
class QTextBrowser;
class QToolButton;
class QTreeWidget;
class QTreeWidgetItem;
class QUrl;

namespace ql {

// One topic of the help document: a section that opens with a heading right
// behind one or more anchors.
struct HelpTopic {
    QStringList anchors;       // the names that address the topic
    QStringList innerAnchors;  // names of places inside the topic
    QString heading;      // the heading's text
    int level = 1;        // 1 for <h1>, 2 for <h2>...
    QString html;         // the section, from its anchors to the next topic
};

// Splits a help document into its topics, in document order. Anchors that do
// not stand right before a heading belong to the topic they are in. A
// document without such headings is one topic.
QList<HelpTopic> helpTopics(const QString& document);

// The window of the program's help document: the contents (the topics by
// their headings) beside the text of one topic at a time, Back and Forward
// through the topics seen. Topics are anchors of the document: "topic-N" for
// a numbered topic, else the form's name. Escape closes it.
class HelpViewer : public QWidget {
public:
    HelpViewer();
    // Shows the topic; a window that was closed opens centred over `over`.
    void showTopic(const QString& helpFile, const QString& form, std::optional<int> topic,
                   const QWidget* over = nullptr);

    // The headings of the contents, in document order.
    QStringList contents() const;
    // The heading of the topic shown and its text.
    QString heading() const;
    QString topicText() const;

    void back();
    void forward();
    bool canGoBack() const { return at_ > 0; }
    bool canGoForward() const { return at_ + 1 < history_.size(); }

private:
    struct Place {
        int topic;
        QString anchor;  // an anchor inside the topic, or ""
    };
    void load(const QString& helpFile);
    void fitContents();
    // The topic of an anchor: its index, else -1.
    int topicOf(const QString& anchor) const;
    void go(const Place& place);
    void display(const Place& place);
    void openLink(const QUrl& url);
    void placeOver(const QWidget* over);

    QSplitter* splitter_;
    QTreeWidget* contents_;
    QTextBrowser* browser_;
    QToolButton* back_;
    QToolButton* forward_;

    QString loaded_;
    QDateTime loadedStamp_;
    QString head_;  // the document's <head>, for its styles
    QList<HelpTopic> topics_;
    QList<QTreeWidgetItem*> items_;  // one per topic
    QList<Place> history_;
    int at_ = -1;
};

}  // namespace ql
