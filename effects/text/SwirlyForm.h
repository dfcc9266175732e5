#pragma once

#include "core/EffectForm.h"
#include "effects/text/SwirlyModel.h"

namespace ql {

// The Swirly Text form.
class SwirlyForm : public ModelForm<SwirlyModel> {
public:
    explicit SwirlyForm(App& app);
    SwirlyModel::Fields fields() const override;

protected:
    void fillLists() override;
};

}  // namespace ql
