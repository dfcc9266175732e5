#pragma once

#include "core/EffectForm.h"
#include "effects/page/CreditsModel.h"

namespace ql {

// The Scrolling Credits form.
class CreditsForm : public ModelForm<CreditsModel> {
public:
    explicit CreditsForm(App& app);
    CreditsModel::Fields fields() const override;
};

}  // namespace ql
