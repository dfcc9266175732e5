#pragma once

#include "core/EffectForm.h"
#include "effects/text/StatusBarModel.h"

namespace ql {

// The Status Bar Text Ticker form: one text and an example.
class StatusBarForm : public ModelForm<StatusBarModel> {
public:
    explicit StatusBarForm(App& app);
    StatusBarModel::Fields fields() const override;
};

}  // namespace ql
