#include "platform/HelpViewer.h"

#include <QFile>
#include <QTextBrowser>
#include <QVBoxLayout>

namespace ql {

HelpViewer::HelpViewer()
    : browser_(new QTextBrowser(this))
{
    setObjectName(QStringLiteral("QuilletHelp"));
    setWindowTitle(QStringLiteral("Quillet Help"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(browser_);
    browser_->setOpenExternalLinks(true);
    resize(640, 520);
}

void HelpViewer::showTopic(const QString& helpFile, const QString& form, std::optional<int> topic)
{
    if (loaded_ != helpFile) {
        QFile file(helpFile);
        if (file.open(QIODevice::ReadOnly))
            browser_->setHtml(QString::fromUtf8(file.readAll()));
        else
            browser_->setHtml(QStringLiteral("<h2>Quillet Help</h2><p>The help file %1 could not be opened.</p>")
                                  .arg(helpFile.toHtmlEscaped()));
        loaded_ = helpFile;
    }
    browser_->scrollToAnchor(topic ? QStringLiteral("topic-%1").arg(*topic) : form);
    show();
    raise();
    activateWindow();
}

}  // namespace ql
