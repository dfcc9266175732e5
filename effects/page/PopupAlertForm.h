#pragma once

#include "core/EffectForm.h"
#include "effects/page/PopupAlertModel.h"

namespace ql {

// The Popup Alert form.
class PopupAlertForm : public ModelForm<PopupAlertModel> {
public:
    explicit PopupAlertForm(App& app);
    PopupAlertModel::Fields fields() const override;
};

}  // namespace ql
