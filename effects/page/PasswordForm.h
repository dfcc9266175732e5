#pragma once

#include "core/EffectForm.h"
#include "effects/page/PasswordModel.h"

class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace ql {

class PageStack;

// The Password Protection form: a scheme page, then the JavaScript page or
// the CGI page, one way forward.
class PasswordForm : public ModelForm<PasswordModel> {
public:
    explicit PasswordForm(App& app);
    PasswordModel::Fields fields() const override;

    // Done of the page in front.
    void done() override;

protected:
    void EditApplet() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* buildSchemePage();
    QWidget* buildJavaScriptPage();
    QWidget* buildCgiPage();
    void showPage(int index, QWidget* focus, QPushButton* defaultButton);
    void next();
    void chooseOnePassword();
    void choosePagePerPassword();
    void doneJavaScript();
    void doneCgi();

    PageStack* pages_;
    QLabel* Label4;
    QRadioButton* Option1;
    QRadioButton* Option2;
    QLabel* Label1;
    QLineEdit* Text1;
    QLabel* Label2;
    QLabel* Label3;
};

}  // namespace ql
