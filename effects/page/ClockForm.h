#pragma once

#include "core/EffectForm.h"
#include "effects/page/ClockModel.h"

namespace ql {

// The Digital Clock form.
class ClockForm : public ModelForm<ClockModel> {
public:
    explicit ClockForm(App& app);
    ClockModel::Fields fields() const override;
    void setFields(const ClockModel::Fields& fields);

protected:
    void fillLists() override;
    void EditApplet() override;

private:
    // The offset field and its caption stand only while the fixed zone is chosen.
    void showTimezoneField(bool shown);
};

}  // namespace ql
