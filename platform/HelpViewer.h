#pragma once

#include <QWidget>
#include <optional>

class QTextBrowser;

namespace ql {

// A window that shows the program's help document at a topic. Topics are
// anchors of the document: "topic-N" for a numbered topic, else the form's
// name.
class HelpViewer : public QWidget {
public:
    HelpViewer();
    void showTopic(const QString& helpFile, const QString& form, std::optional<int> topic);

private:
    QTextBrowser* browser_;
    QString loaded_;
};

}  // namespace ql
