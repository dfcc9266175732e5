#pragma once

#include "core/EffectForm.h"
#include "effects/text/SmoothScrollModel.h"

namespace ql {

// The Smooth Scrolling Text Ticker form.
class SmoothScrollForm : public ModelForm<SmoothScrollModel> {
public:
    explicit SmoothScrollForm(App& app);
    SmoothScrollModel::Fields fields() const override;

protected:
    void fillLists() override;
    void EditApplet() override;
};

}  // namespace ql
