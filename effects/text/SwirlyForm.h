#pragma once

#include "core/EffectForm.h"
#include "effects/text/SwirlyModel.h"

class QComboBox;
class QLineEdit;

namespace ql {

class ColorSwatch;

// The Swirly Text form: a text drawn in swirling colours by ColorSwirl.class.
class SwirlyForm : public EffectForm {
    Q_OBJECT
public:
    explicit SwirlyForm(App& app);

    swirly::Fields fields() const;

protected:
    void fillLists() override;
    void EditApplet() override;

private:
    void done();

    QLineEdit* Text7;
    QComboBox* Combo1;
    QComboBox* Combo9;
    QLineEdit* Text1;
    ColorSwatch* Label5;
    QLineEdit* Text10;
    QLineEdit* Text11;
    QLineEdit* Text3;
    QLineEdit* Text2;
};

}  // namespace ql
