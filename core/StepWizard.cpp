#include "core/StepWizard.h"

#include "core/Keyboard.h"
#include "core/Widgets.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

namespace ql {

// ---- StableLabel

StableLabel::StableLabel(QWidget* parent)
    : QLabel(parent)
{
    setWordWrap(true);
    setAlignment(Qt::AlignLeft | Qt::AlignTop);
}

void StableLabel::reserve(const QString& text)
{
    if (!text.isEmpty() && !texts_.contains(text)) {
        texts_ << text;
        updateGeometry();
    }
}

int StableLabel::heightForWidth(int width) const
{
    int height = QLabel::heightForWidth(width);
    const int inner = std::max(1, width - 2 * margin() - 2 * frameWidth());
    for (const QString& text : texts_) {
        const QRect r = fontMetrics().boundingRect(QRect(0, 0, inner, 100000), Qt::TextWordWrap, text);
        height = std::max(height, r.height() + 2 * margin() + 2 * frameWidth());
    }
    return height;
}

QSize StableLabel::sizeHint() const
{
    QSize hint = QLabel::sizeHint();
    hint.setHeight(std::max(hint.height(), heightForWidth(hint.width())));
    return hint;
}

QSize StableLabel::minimumSizeHint() const
{
    QSize hint = QLabel::minimumSizeHint();
    hint.setHeight(std::max(hint.height(), heightForWidth(std::max(hint.width(), 200))));
    return hint;
}

// ---- StepList

StepList::StepList(QWidget* parent, const QString& name, const QStringList& steps)
    : QFrame(parent)
{
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    QPalette p = palette();
    p.setColor(QPalette::Window, p.color(QPalette::Base));
    setPalette(p);
    auto* layout = new QVBoxLayout(this);
    for (int i = 0; i < steps.size(); ++i) {
        auto* label = named(new QLabel(steps[i], this), arrayName(name, i));
        label->setWordWrap(true);
        labels_ << label;
        layout->addWidget(label);
    }
    layout->addStretch();
    const int width = fontMetrics().horizontalAdvance(QStringLiteral("Step 0: Upload to Web")) + 24;
    setFixedWidth(width);
}

void StepList::mark(int step)
{
    for (int i = 0; i < labels_.size(); ++i) {
        QFont f = labels_[i]->font();
        f.setBold(i == step);
        labels_[i]->setFont(f);
    }
}

// ---- StepWizard

StepWizard::StepWizard(QWidget* form, const QString& titleName, const QString& instructionName)
    : QObject(form)
    , form_(form)
    , body_(new QWidget(form))
    , pages_(new PageStack(body_))
{
    auto* column = new QVBoxLayout;
    column->setContentsMargins(0, 0, 0, 0);
    if (!titleName.isEmpty()) {
        title_ = named(new StableLabel(body_), titleName);
        QFont f = title_->font();
        f.setBold(true);
        f.setPointSizeF(f.pointSizeF() * 1.2);
        title_->setFont(f);
        column->addWidget(title_);
    }
    if (!instructionName.isEmpty()) {
        instruction_ = named(new StableLabel(body_), instructionName);
        column->addWidget(instruction_);
    }
    column->addWidget(pages_, 1);
    auto* layout = new QHBoxLayout(body_);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(column, 1);
    connect(pages_, &QStackedWidget::currentChanged, this, [this](int index) {
        if (stepList_)
            stepList_->mark(index);
    });
}

QWidget* StepWizard::addPage(const QString& name, const Step& step)
{
    auto* page = named(new QWidget, name);
    pages_->addPage(page);
    steps_ << step;
    if (title_)
        title_->reserve(step.title);
    if (instruction_)
        instruction_->reserve(step.instruction);
    if (pages_->count() == 1)
        showStep(step);
    return page;
}

StepList* StepWizard::addStepList(const QString& name, const QStringList& steps)
{
    stepList_ = new StepList(body_, name, steps);
    static_cast<QHBoxLayout*>(body_->layout())->insertWidget(0, stepList_);
    stepList_->mark(current());
    return stepList_;
}

QPushButton* StepWizard::makeBack(const QString& name, const QString& caption)
{
    back_ = commandButton(form_, name, caption);
    back_->setEnabled(current() > 0);
    connect(back_, &QPushButton::clicked, this, &StepWizard::backClicked);
    return back_;
}

QPushButton* StepWizard::makeForward(const QString& name, const QString& caption, const QString& doneCaption)
{
    forward_ = commandButton(form_, name, caption);
    forward_->setDefault(true);
    forwardCaption_ = caption;
    doneCaption_ = doneCaption;
    // The forward button keeps the width of its wider caption.
    const QFontMetrics metrics = forward_->fontMetrics();
    const int text = std::max(metrics.horizontalAdvance(QString(caption).remove('&')),
                              metrics.horizontalAdvance(QString(doneCaption).remove('&')));
    forward_->setMinimumWidth(std::max(forward_->minimumWidth(), text + 32));
    connect(forward_, &QPushButton::clicked, this, &StepWizard::forwardClicked);
    return forward_;
}

QHBoxLayout* StepWizard::navigationRow(QWidget* help, QWidget* cancel)
{
    auto* row = new QHBoxLayout;
    if (help)
        row->addWidget(help);
    row->addStretch();
    if (back_)
        row->addWidget(back_);
    if (forward_)
        row->addWidget(forward_);
    if (cancel)
        row->addWidget(cancel);
    return row;
}

QWidget* StepWizard::page(int index) const
{
    return pages_->widget(index);
}

int StepWizard::current() const
{
    return pages_->currentIndex();
}

int StepWizard::count() const
{
    return pages_->count();
}

void StepWizard::showStep(const Step& step)
{
    if (title_)
        title_->setText(step.title);
    if (instruction_)
        instruction_->setText(step.instruction);
}

void StepWizard::goTo(int index, QWidget* focus)
{
    if (index < 0 || index >= count())
        return;
    pages_->bringToFront(index);
    showStep(steps_.value(index));
    if (back_)
        back_->setEnabled(index > 0);
    if (forward_)
        forward_->setText(index == count() - 1 ? doneCaption_ : forwardCaption_);
    if (focus)
        focusIfShown(focus);
    QWidget* window = form_->window();
    QWidget* now = window->focusWidget();
    const bool onPage = now && pages_->currentWidget()->isAncestorOf(now);
    if (!focus && !onPage) {
        // The first control of the page that takes the focus.
        QWidget* pageWidget = pages_->currentWidget();
        for (QWidget* w = pageWidget->nextInFocusChain(); w && w != pageWidget; w = w->nextInFocusChain()) {
            if (!pageWidget->isAncestorOf(w))
                break;
            if (w->isVisible() && w->isEnabled() && (w->focusPolicy() & Qt::TabFocus)) {
                w->setFocus(Qt::OtherFocusReason);
                break;
            }
        }
    }
    settleFocus(window);
}

}  // namespace ql
