#pragma once

#include "core/Form.h"

class QPushButton;
class QRadioButton;
class QWidget;

namespace ql {

class CodeBox;

// The re-edit entry: takes pasted applet code, recognises the applet by the
// first letters of its class name and opens its form filled from the code.
class EditAppletForm : public Form {
    Q_OBJECT
public:
    explicit EditAppletForm(App& app);

    // The form that takes code whose class name begins with `prefix5`
    // (the five characters behind "CODE=", a quote included); "*wizard*" for
    // the choice of animation wizard, "" for none.
    static QString routeOf(const QString& prefix5);
    static const QString WizardChoice;
    // Every form that re-edit opens, the wizard choice's three included.
    static QStringList routedForms();

private:
    void edit();
    void editWithWizard();
    void showPage2();

    QWidget* Picture1;
    QWidget* Picture2;
    CodeBox* Text1;
    QRadioButton* Option1;
    QRadioButton* Option2;
    QRadioButton* Option3;
    QPushButton* edit2_;
};

}  // namespace ql
