#pragma once

#include <QLabel>
#include <QObject>
#include <QStringList>

class QPushButton;
class QHBoxLayout;

namespace ql {

class PageStack;

// A label whose size fits the longest of the texts it will show, so that a
// window does not change size as the label's text changes.
class StableLabel : public QLabel {
    Q_OBJECT
public:
    explicit StableLabel(QWidget* parent = nullptr);
    // A text the label may show later.
    void reserve(const QString& text);

    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

private:
    QStringList texts_;
};

// A list of the steps of a wizard, beside its pages: the current step in
// bold. Its labels are the control array `name`(0..n-1).
class StepList : public QFrame {
    Q_OBJECT
public:
    StepList(QWidget* parent, const QString& name, const QStringList& steps);
    void mark(int step);
    QLabel* label(int step) const { return labels_.value(step); }

private:
    QList<QLabel*> labels_;
};

// The stacked pages of a wizard form: the page in front, the title and
// instruction of each step, Previous and Next (Next reads "Done" on the last
// page), the default button for Enter, and a window that keeps one size for
// all its pages. The form builds each page's controls and decides when to
// move: a Next that validates calls goTo() only when the page passes.
class StepWizard : public QObject {
    Q_OBJECT
public:
    struct Step {
        QString title;
        QString instruction;
    };

    // `titleName` and `instructionName` name the labels over the pages ("" for
    // none).
    StepWizard(QWidget* form, const QString& titleName, const QString& instructionName);

    // Adds a page, named as the form's control array has it ("Picture1(0)").
    QWidget* addPage(const QString& name, const Step& step = {});
    // A list of steps beside the pages.
    StepList* addStepList(const QString& name, const QStringList& steps);

    // The navigation buttons, by the names the form gives them. Back is
    // disabled on the first page; forward reads `doneCaption` on the last.
    QPushButton* makeBack(const QString& name, const QString& caption = QStringLiteral("<< &Previous"));
    QPushButton* makeForward(const QString& name, const QString& caption = QStringLiteral("&Next >>"),
                             const QString& doneCaption = QStringLiteral("&Done"));
    // The row of Help, Back, Forward and Cancel; any of them may be null.
    QHBoxLayout* navigationRow(QWidget* help, QWidget* cancel);

    // The title, instruction and pages, with the step list where there is one.
    QWidget* body() const { return body_; }
    PageStack* pages() const { return pages_; }
    QLabel* title() const { return title_; }
    QLabel* instruction() const { return instruction_; }
    QWidget* page(int index) const;
    QPushButton* back() const { return back_; }
    QPushButton* forward() const { return forward_; }

    int current() const;
    int count() const;
    bool onLastPage() const { return current() == count() - 1; }

    // Brings a page to the front with its title and instruction, sets the
    // buttons for it and puts the focus on `focus`, or on the first control
    // of the page that takes it.
    void goTo(int index, QWidget* focus = nullptr);
    // Sets the texts over the pages without changing the page.
    void showStep(const Step& step);

signals:
    void backClicked();
    void forwardClicked();

private:
    QWidget* form_;
    QWidget* body_;
    PageStack* pages_;
    StableLabel* title_ = nullptr;
    StableLabel* instruction_ = nullptr;
    StepList* stepList_ = nullptr;
    QPushButton* back_ = nullptr;
    QPushButton* forward_ = nullptr;
    QString forwardCaption_;
    QString doneCaption_;
    QList<Step> steps_;
};

}  // namespace ql
